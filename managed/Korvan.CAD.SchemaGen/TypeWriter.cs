using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes the defined types, select types and enumerations of a schema.</summary>
internal static class TypeWriter
{
    private const string Indent = "    ";

    internal static string Write(SchemaVersion version)
    {
        StringBuilder text = SchemaVersion.Begin(
            version.Namespace + ".Types", "using System.Collections;\nusing Korvan.CAD.FileFormats.Ifc;\n");
        foreach (SchemaDefinedType type in version.Table.DefinedTypes.Values)
        {
            WriteDefined(version, type, text);
        }

        foreach (SchemaChoice select in version.Table.Selects.Values)
        {
            WriteSelect(version, select, text);
        }

        foreach (SchemaChoice enumeration in version.Table.Enumerations.Values)
        {
            WriteEnumeration(version, enumeration, text);
        }

        return text.ToString();
    }

    private static void WriteDefined(SchemaVersion version, SchemaDefinedType type, StringBuilder text)
    {
        SchemaShape shape = version.Table.ShapeOf(type.Form);
        string name = type.Name + version.Suffix;
        (string taken, string kept, string made) = shape switch
        {
            SchemaShape.Text => ("string", "string", "value"),
            SchemaShape.Real => ("double", "double", "value"),
            SchemaShape.Integer => ("long", "long", "value"),
            SchemaShape.Boolean => ("bool", "bool", "value"),
            SchemaShape.Logical => ("bool?", "bool?", "value"),
            SchemaShape.Binary => ("byte[]", "byte[]", "(byte[])value.Clone()"),
            _ => ("IList", "IfcCollection", "new IfcCollection(value)"),
        };
        string title = $"A value of the type {type.Name} of {version.Table.Name}: {type.Form.Describe()}.";
        SchemaVersion.Summary(text, "", title).Append($"public sealed class {name} : IIfcType\n{{");
        SchemaVersion.Summary(text, Indent, "Creates the value.")
            .Append($"    /// <param name=\"value\">The value without its type{Unknown(shape)}.</param>\n")
            .Append($"    public {name}({taken} value) {{ Value = {made}; }}\n");
        SchemaVersion.Summary(text, Indent, $"Gets the value without its type{Unknown(shape)}.")
            .Append($"    public {kept} Value {{ get; }}\n");
        SchemaVersion.Summary(text, Indent, "Gets the name in the schema.")
            .Append($"    public string TypeName => \"{type.Name}\";\n");
        SchemaVersion.Summary(text, Indent, "Gets the value without its type.")
            .Append("    public object? PlainValue => Value;\n");
        SchemaVersion.Summary(text, Indent, "Returns type and value as text.")
            .Append($"    public override string ToString() => System.FormattableString.Invariant($\"{type.Name}")
            .Append("({Value})\");\n}\n");
    }

    private static string Unknown(SchemaShape shape) =>
        shape == SchemaShape.Logical ? "; <see langword=\"null\"/> if it is unknown" : string.Empty;

    private static void WriteSelect(SchemaVersion version, SchemaChoice select, StringBuilder text)
    {
        string name = select.Name + version.Suffix;
        string title = $"The select type {select.Name} of {version.Table.Name}: one of "
            + string.Join(", ", select.Members) + ".";
        SchemaVersion.Summary(text, "", title).Append($"public sealed class {name} : IfcSelect\n{{");
        SchemaVersion.Summary(text, Indent, "Creates a select value.")
            .Append("    /// <param name=\"value\">An entity or a value of a defined type that the select type ")
            .Append("admits.</param>\n")
            .Append($"    public {name}(IIfcType value) : base(value) {{ }}\n");
        foreach (string member in select.Members.Where(version.Table.Enumerations.ContainsKey))
        {
            SchemaVersion.Summary(text, Indent, $"Creates a select value for an item of {member}.")
                .Append("    /// <param name=\"value\">The item.</param>\n")
                .Append($"    public {name}({version.Type(member)} value) : base(\"{member}\", (int)value) {{ }}\n");
        }

        text.Append("}\n");
    }

    private static void WriteEnumeration(SchemaVersion version, SchemaChoice enumeration, StringBuilder text)
    {
        string title = $"The enumeration {enumeration.Name} of {version.Table.Name}.";
        SchemaVersion.Summary(text, "", title).Append($"public enum {enumeration.Name}{version.Suffix}\n{{\n");
        for (int i = 0; i < enumeration.Members.Length; i++)
        {
            text.Append(Indent).Append(enumeration.Members[i]).Append(" = ").Append(i + 1).Append(",\n");
        }

        text.Append("}\n");
    }
}
