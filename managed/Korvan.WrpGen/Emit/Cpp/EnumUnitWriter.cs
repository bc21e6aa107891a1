using System.Globalization;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>Writes the tables of one enum.</summary>
internal static class EnumUnitWriter
{
    public static void Write(CodeWriter writer, TypeModel type)
    {
        string symbol = type.Symbol;
        writer.Line($"// {type.ManagedName}");
        HostWriter.Write(writer, $"PyHost_cs_{symbol}", $"{type.WrapperNamespace}.{type.WrapperClass}", type.Delegates);
        writer.Line($"static const EnumMember members_{symbol}[] = {{");
        writer.Indented(() => type.EnumMembers.ForEach(member =>
            writer.Line($"{{\"{member.PythonName}\", {Literal(member.Bits)}}},")));
        writer.Line(type.EnumMembers.Count == 0 ? "    {}};" : "};");
        writer.Line($"static PyMethodDef methods_{symbol}[] = {{KORVAN_ENUM_METHODS(enum_{symbol})}};");
        writer.Line($"constinit EnumBinding enum_{symbol} = {{");
        writer.Indented(() =>
        {
            writer.Line($".name = \"{type.PythonName}\",");
            writer.Line($".short_name = \"{type.Name}\",");
            writer.Line($".kind = EnumKind::{(type.IsIntegerEnum ? "integer" : "flag")},");
            writer.Line($".storage = EnumStorage::{Storage(type)},");
            writer.Line($".host = &PyHost_cs_{symbol},");
            writer.Line($".members = members_{symbol},");
            writer.Line($".count = {type.EnumMembers.Count},");
            writer.Line($".methods = methods_{symbol},");
            if (type.Outer is { } outer)
            {
                writer.Line($".outer = &class_{outer.Symbol},");
            }
        });
        writer.Line("};").Line();
    }

    // The least value has no literal of its own.
    private static string Literal(long bits) => bits == long.MinValue
        ? "INT64_MIN"
        : bits.ToString(CultureInfo.InvariantCulture);

    private static string Storage(TypeModel type) => type.Underlying!.Kind switch
    {
        ValueKind.SByte => "int8",
        ValueKind.Byte => "uint8",
        ValueKind.Int16 => "int16",
        ValueKind.UInt16 => "uint16",
        ValueKind.UInt32 => "uint32",
        ValueKind.Int64 => "int64",
        ValueKind.UInt64 => "uint64",
        _ => "int32",
    };
}
