using System.Collections.Generic;
using System.Linq;
using System.Text;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen;

/// <summary>Writes the exchange of the fields of a class with drawing databases.</summary>
internal static class BitsText
{
    private const string Exchange = $"{CodecWriter.Exchange}.BitExchange";

    private static readonly Dictionary<string, string> Integers = new()
    {
        ["BB"] = "BitPair",
        ["BS"] = "BitShort",
        ["BL"] = "BitLong",
        ["BLL"] = "BitLongLong",
        ["RC"] = "RawByte",
        ["RS"] = "RawShort",
        ["RL"] = "RawLong",
        ["CMP"] = "PackedColor",
    };

    private static readonly Dictionary<string, string> Numbers = new()
    {
        ["BD"] = "BitDouble",
        ["RD"] = "RawDouble",
        ["BT"] = "Thickness",
    };

    private static readonly Dictionary<string, string> Points = new()
    {
        ["3BD"] = "Point3",
        ["2BD"] = "Point2",
        ["3RD"] = "RawPoint3",
        ["2RD"] = "RawPoint2",
        ["BE"] = "Extrusion",
    };

    private static readonly Dictionary<string, string> Counts = new()
    {
        ["BL"] = "CountLong",
        ["BS"] = "CountShort",
        ["RC"] = "CountByte",
    };

    public static void Write(CadClass model, StringBuilder text)
    {
        if (model.Bits is null)
        {
            // The list of a base class is not that of the class.
            text.AppendLine(model.IsPartOfObject || model.IsAbstract || model.Kind == "CadBaseAcds" ? ""
                : "    internal override bool HasBits => false;");
            return;
        }

        if (!model.IsPartOfObject && !model.IsAbstract)
        {
            BitItem? partial = model.Bits.FirstOrDefault(item => item.Call == "partial");
            string isWhole = partial is null ? "true" : partial.Guard.Length > 0 ? $"!({partial.Guard})" : "false";
            text.AppendLine("    internal override bool HasBits => true;");
            text.AppendLine($"    internal override bool HasAllBits => {isWhole};");
        }

        text.AppendLine($"    internal {Modifier(model)}void ExchangeBits({Exchange} fields)");
        text.AppendLine("    {");
        foreach (BitItem item in model.Bits.Where(item => item.Call != "partial"))
        {
            text.AppendLine(item.Guard.Length > 0 ? $"        if ({item.Guard})" : "");
            text.AppendLine("        {");
            text.AppendLine($"            {Statement(item, model)}");
            text.AppendLine("        }");
        }

        text.AppendLine("    }");
    }

    // The class of a part overrides that of another part where it says so by "base".
    private static string Modifier(CadClass model) => !model.IsPartOfObject ? "override "
        : model.Bits!.Any(item => item.Call == "base") ? "override "
        : model.IsAbstract ? "virtual " : "";

    private static string Statement(BitItem item, CadClass model)
    {
        switch (item)
        {
            case { Call: "base" }:
                return "base.ExchangeBits(fields);";
            case { Call: "declared" }:
                return "Exchange(fields.Declared);";
            case { Call.Length: > 0 }:
                return $"{item.Call.Substring(0, item.Call.Length - 2)}(fields);";
            case { Value.Length: > 0 }:
                return Constant(item);
            case { Names.Length: 0 }:
                return Constant(item);
        }

        if (item.Coding is "CMC" or "TC")
        {
            return Color(item, model);
        }

        (ITypeSymbol? type, CadProperty? property) = model.Find(item.Names[0]);
        return type is null ? Error(model, $"has no property {item.Names[0]}")
            : item.Count.Length > 0 ? List(item, type, property)
            : Value(item.Coding, type, property, item.Names[0], model);
    }

    private static string Constant(BitItem item)
    {
        string value = item.Value.Length > 0 ? item.Value : Default(item.Coding);
        string method = item.Coding switch
        {
            "B" => "Bit",
            "T" => "Text",
            "H" => $"Handle({CodecWriter.Exchange}.HandleRole.HardPointer, ",
            _ when Integers.TryGetValue(item.Coding, out string integer) => integer,
            _ when Numbers.TryGetValue(item.Coding, out string number) => number,
            "CMC" => "Color",
            _ => "Unknown" + item.Coding,
        };
        return item.Coding == "CMC" ? $"fields.Color({value}, -1, \"\");"
            : method.EndsWith(", ", System.StringComparison.Ordinal) ? $"fields.{method}{value});"
            : $"fields.{method}({value});";
    }

    private static string Default(string coding) => coding switch
    {
        "B" => "false",
        "T" => "\"\"",
        "H" => "\"0\"",
        _ => "0",
    };

    private static string Color(BitItem item, CadClass model)
    {
        string[] values = ["0", "-1", "\"\""];
        string[] targets = ["_", "_", "_"];
        List<string> takes = [];
        for (int i = 0; i < item.Names.Length && i < values.Length; i++)
        {
            string name = item.Names[i];
            if (name == "_")
            {
                continue;
            }

            (ITypeSymbol? type, _) = model.Find(name);
            if (type is null)
            {
                return Error(model, $"has no property {name}");
            }

            values[i] = i < 2 ? $"(int){name}" : name;
            targets[i] = $"var color{i}";
            string cast = i < 2 ? $"({type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat)})" : "";
            takes.Add($"{name} = {cast}color{i};");
        }

        string method = item.Coding == "TC" ? "TrueColor" : "Color";
        return $"({string.Join(", ", targets)}) = fields.{method}({string.Join(", ", values)}); "
            + string.Join(" ", takes);
    }

    private static string List(BitItem item, ITypeSymbol type, CadProperty? property)
    {
        string name = item.Names[0];
        bool isKnown = Counts.TryGetValue(item.Count, out string count);
        string total = isKnown ? $"fields.{count}({name}.Count)" : item.Count;
        ITypeSymbol? element = (type as INamedTypeSymbol)?.TypeArguments.FirstOrDefault();
        if (item.Coding == "H")
        {
            return $"fields.Handles({Role(property)}, {name}, {total});";
        }

        string start = $"int count = {total}; ";
        string loop = "for (int i = 0; i < count; i++) ";
        if (item.Coding == "Part")
        {
            return $"{start}{loop}{{ fields.Item({name}, i).ExchangeBits(fields); }}";
        }

        if (Points.TryGetValue(item.Coding, out string point))
        {
            return $"{start}{loop}{{ fields.{point}(fields.Item({name}, i)); }}";
        }

        string value = element is null ? "" : Assigned(item.Coding, element, property, $"{name}[i]");
        string missing = Constant(new BitItem(item.Coding));
        return $"{start}fields.Resize({name}, count); "
            + $"{loop}{{ if (i < {name}.Count) {{ {value}; }} else {{ {missing} }} }}";
    }

    private static string Value(
        string coding, ITypeSymbol type, CadProperty? property, string name, CadClass model)
    {
        if (coding == "Matrix")
        {
            return $"fields.Matrix({name});";
        }

        if (coding == "Part")
        {
            return $"{name}.ExchangeBits(fields);";
        }

        if (Points.TryGetValue(coding, out string point))
        {
            return $"fields.{point}({name});";
        }

        string value = Assigned(coding, type, property, name);
        return value.Length == 0 ? Error(model, $"has the unknown coding {coding} for {name}") : $"{value};";
    }

    private static string Assigned(string coding, ITypeSymbol type, CadProperty? property, string name)
    {
        string cast = type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat);
        bool isBool = type.SpecialType == SpecialType.System_Boolean;
        if (coding == "B")
        {
            return isBool ? $"{name} = fields.Bit({name})"
                : $"{name} = ({cast})fields.Flag((int){name})";
        }

        if (Integers.TryGetValue(coding, out string integer))
        {
            return isBool ? $"{name} = fields.{integer}({name} ? 1 : 0) != 0"
                : $"{name} = ({cast})fields.{integer}((int){name})".Replace("BitLongLong((int)", "BitLongLong((long)");
        }

        if (Numbers.TryGetValue(coding, out string number))
        {
            bool isAngle = property?.Kind == "CadAngle";
            string method = !isAngle ? number : coding == "RD" ? "RawAngle" : "Angle";
            return $"{name} = fields.{method}({name})";
        }

        return coding switch
        {
            "T" => $"{name} = fields.Text({name} ?? \"\")",
            "H" when property?.Kind == "CadName" => $"{name} = fields.Name({property.Table}, {name})",
            "H" => $"{name} = fields.Handle({Role(property)}, {name}{(type.Name == "String" ? " ?? \"0\"" : "")})",
            _ => "",
        };
    }

    private static string Role(CadProperty? property) =>
        $"{CodecWriter.Exchange}.HandleRole.{property?.HandleRole ?? "HardPointer"}";

    private static string Error(CadClass model, string cause) =>
        $"{{ }}\n#error The list of fields of {model.Name} {cause}.\n";
}
