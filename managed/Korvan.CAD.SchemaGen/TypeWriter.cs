using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes the defined types, select types and enumerations of an edition.</summary>
internal static class TypeWriter
{
    private const string Indent = "    ";

    internal static string Write(Edition edition)
    {
        StringBuilder text = Edition.Head(
            edition.Namespace + ".Types", "using System.Collections;\nusing Korvan.CAD.FileFormats.Ifc;\n");
        foreach (SchemaDefinedType type in edition.Table.DefinedTypes.Values)
        {
            WriteDefined(edition, type, text);
        }

        foreach (SchemaChoice select in edition.Table.Selects.Values)
        {
            WriteSelect(edition, select, text);
        }

        foreach (SchemaChoice enumeration in edition.Table.Enumerations.Values)
        {
            WriteEnumeration(edition, enumeration, text);
        }

        return text.ToString();
    }

    private static void WriteDefined(Edition edition, SchemaDefinedType type, StringBuilder text)
    {
        SchemaShape shape = edition.Table.ShapeOf(type.Form);
        string name = type.Name + edition.Suffix;
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
        string title = $"A value of the type {type.Name} of {edition.Table.Name}: {type.Form.Describe()}.";
        Edition.Summary(text, "", title).Append($"public sealed class {name} : IIfcType\n{{");
        Edition.Summary(text, Indent, "Creates the value.")
            .Append($"    /// <param name=\"value\">The value without its type{Unknown(shape)}.</param>\n")
            .Append($"    public {name}({taken} value) {{ Value = {made}; }}\n");
        Edition.Summary(text, Indent, $"Gets the value without its type{Unknown(shape)}.")
            .Append($"    public {kept} Value {{ get; }}\n");
        Edition.Summary(text, Indent, "Gets the name in the schema.")
            .Append($"    public string TypeName => \"{type.Name}\";\n");
        Edition.Summary(text, Indent, "Gets the value without its type.")
            .Append("    public object? PlainValue => Value;\n");
        Edition.Summary(text, Indent, "Gives type and value as text.")
            .Append($"    public override string ToString() => System.FormattableString.Invariant($\"{type.Name}")
            .Append("({Value})\");\n}\n");
    }

    private static string Unknown(SchemaShape shape) =>
        shape == SchemaShape.Logical ? "; nothing where it is unknown" : string.Empty;

    private static void WriteSelect(Edition edition, SchemaChoice select, StringBuilder text)
    {
        string name = select.Name + edition.Suffix;
        string title = $"The select type {select.Name} of {edition.Table.Name}: one of "
            + string.Join(", ", select.Members) + ".";
        Edition.Summary(text, "", title).Append($"public sealed class {name} : IfcSelect\n{{");
        Edition.Summary(text, Indent, "Chooses a value.")
            .Append("    /// <param name=\"value\">An entity or a value of a defined type that is admitted.</param>\n")
            .Append($"    public {name}(IIfcType value) : base(value) {{ }}\n");
        foreach (string member in select.Members.Where(edition.Table.Enumerations.ContainsKey))
        {
            Edition.Summary(text, Indent, $"Chooses an item of {member}.")
                .Append("    /// <param name=\"value\">The item.</param>\n")
                .Append($"    public {name}({edition.Type(member)} value) : base(\"{member}\", (int)value) {{ }}\n");
        }

        text.Append("}\n");
    }

    private static void WriteEnumeration(Edition edition, SchemaChoice enumeration, StringBuilder text)
    {
        string title = $"The enumeration {enumeration.Name} of {edition.Table.Name}. A value is one item.";
        Edition.Summary(text, "", title).Append($"public enum {enumeration.Name}{edition.Suffix}\n{{\n");
        for (int i = 0; i < enumeration.Members.Length; i++)
        {
            text.Append(Indent).Append(enumeration.Members[i]).Append(" = ").Append(i + 1).Append(",\n");
        }

        text.Append("}\n");
    }
}
