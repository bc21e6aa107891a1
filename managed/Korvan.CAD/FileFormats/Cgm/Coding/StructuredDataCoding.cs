using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Import;
using Type = Korvan.CAD.FileFormats.Cgm.Classes.StructuredDataRecord.StructuredDataType;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Values that tell their types: each member is an index, a count and that many values.</summary>
internal static class StructuredDataCoding
{
    private delegate object Exchange(ParameterExchange x, object? value);

    private static readonly Dictionary<Type, Exchange> s_types = new()
    {
        [Type.StructuredData] = static (x, value) => x.Record((StructuredDataRecord?)value),
        [Type.ColorIndex] = static (x, value) => x.ColorIndex(Number(value)),
        [Type.DirectColor] = static (x, value) => x.DirectColor((CgmColor?)value),
        [Type.Name] = static (x, value) => x.Name(Number(value)),
        [Type.Enumeration] = static (x, value) => x.BareEnumeration(Number(value)),
        [Type.Integer] = static (x, value) => x.Integer(Number(value)),
        [Type.Integer8] = static (x, value) => x.Signed(Number(value), 8),
        [Type.Integer16] = static (x, value) => x.Signed(Number(value), 16),
        [Type.Integer32] = static (x, value) => x.Signed(Number(value), 32),
        [Type.Index] = static (x, value) => x.Index(Number(value)),
        [Type.Real] = static (x, value) => x.Real(Convert.ToDouble(value ?? 0.0)),
        [Type.Text] = static (x, value) => x.String((string?)value),
        [Type.FixedText] = static (x, value) => x.String((string?)value),
        [Type.ViewportCoordinate] = static (x, value) => x.ViewportCoordinate((VC?)value),
        [Type.Coordinate] = static (x, value) => x.Vdc(Convert.ToDouble(value ?? 0.0)),
        [Type.ColorComponent] = static (x, value) => Fit(x.ColorComponent(Long(value))),
        [Type.Unsigned8] = static (x, value) => Fit(x.Unsigned(Long(value), 8)),
        [Type.Unsigned32] = static (x, value) => Fit(x.Unsigned(Long(value), 32)),
        [Type.Bits] = static (x, value) => Fit(x.Unsigned(Long(value), 16)),
        [Type.ColorList] = static (x, value) => x.Color((CgmColor?)value),
        [Type.Unsigned16] = static (x, value) => Fit(x.Unsigned(Long(value), 16)),
    };

    internal static StructuredDataRecord Read(ParameterExchange x)
    {
        var record = new StructuredDataRecord();
        while (x.HasMore)
        {
            var type = (Type)x.Index(0);
            int count = x.Integer(0);
            Exchange exchange = Find(type);
            record.Members.Add(new StructuredDataRecord.Member(type, x.Counted(new List<object>(), count, (y, value) => exchange(y, value))));
        }

        return record;
    }

    internal static void Write(ParameterExchange x, StructuredDataRecord record)
    {
        foreach (StructuredDataRecord.Member member in record.Members)
        {
            Exchange exchange = Find(member.Type);
            x.Index((int)member.Type);
            x.Integer(member.Values.Count);
            foreach (object value in member.Values)
            {
                WriteOne(x, member.Type, exchange, value);
            }
        }
    }

    private static void WriteOne(ParameterExchange x, Type type, Exchange exchange, object value)
    {
        try
        {
            exchange(x, value);
        }
        catch (Exception e) when (e is InvalidCastException or FormatException or OverflowException)
        {
            throw new CgmDataException($"the value '{value}' ({value?.GetType().Name}) of a record is none of the type {type}");
        }
    }

    private static Exchange Find(Type type) =>
        s_types.TryGetValue(type, out Exchange? exchange)
            ? exchange
            : throw new CgmDataException($"the type {(int)type} of a value in a record is unknown");

    private static int Number(object? value) => Convert.ToInt32(value ?? 0);

    private static long Long(object? value) => Convert.ToInt64(value ?? 0);

    // Numbers of 32 bits without sign are doubles where an int does not hold them.
    private static object Fit(long value) => value is >= int.MinValue and <= int.MaxValue ? (object)(int)value : (double)value;
}
