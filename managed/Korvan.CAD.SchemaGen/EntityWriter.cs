using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes a class for each entity of a schema, with a property for each attribute that it declares.</summary>
internal static class EntityWriter
{
    private const string Base = "global::Korvan.CAD.FileFormats.Ifc.IfcEntityBase";
    private const string Indent = "    ";

    internal static string Write(SchemaVersion version)
    {
        StringBuilder text = SchemaVersion.Begin(
            version.Namespace + ".Entities", "using System.Collections;\nusing System.Collections.Generic;\n");
        foreach (SchemaEntity entity in version.Table.Entities.Values)
        {
            WriteEntity(version, entity, text);
        }

        return text.ToString();
    }

    private static void WriteEntity(SchemaVersion version, SchemaEntity entity, StringBuilder text)
    {
        string title = $"The entity {entity.Name} of {version.Table.Name}"
            + (entity.BaseName is null ? "" : $", a subtype of {entity.BaseName}")
            + (entity.IsAbstract ? "; it is abstract." : ".");
        string parent = entity.BaseName is { } name ? version.Entity(name) : Base;
        SchemaVersion.Summary(text, "", title).Append("public ").Append(entity.IsAbstract ? "abstract " : "")
            .Append("class ").Append(entity.Name).Append(version.Suffix).Append(" : ").Append(parent).Append("\n{");
        int first = CountInherited(version.Table, entity, static one => one.Attributes.Count);
        for (int i = 0; i < entity.Attributes.Count; i++)
        {
            WriteAttribute(version, entity.Attributes[i], first + i, text);
        }

        first = CountInherited(version.Table, entity, static one => one.Inverses.Count);
        for (int i = 0; i < entity.Inverses.Count; i++)
        {
            WriteInverse(version, entity.Inverses[i], first + i, text);
        }

        text.Append("}\n");
    }

    private static int CountInherited(
        SchemaTable table, SchemaEntity entity, System.Func<SchemaEntity, int> count)
    {
        int all = 0;
        while (entity.BaseName is { } name)
        {
            entity = table.Entities[name];
            all += count(entity);
        }

        return all;
    }

    private static void WriteAttribute(SchemaVersion version, SchemaAttribute attribute, int at, StringBuilder text)
    {
        SchemaShape shape = version.Table.ShapeOf(attribute.Form);
        string form = attribute.Form.Describe();
        string optional = attribute.IsOptional ? "optional" : "mandatory";
        string summary = $"Gets or sets the attribute {attribute.Name}, {optional}: {form}.";
        string type = TypeOf(version, attribute.Form, shape);
        string get = shape is SchemaShape.Enumeration or SchemaShape.Entity or SchemaShape.Select
            ? $"({type}?){shape}At({at})"
            : $"{Getters[shape]}({at})";
        string set = shape == SchemaShape.Enumeration ? $"PutEnumeration({at}, (int?)value)" : $"Put({at}, value)";
        SchemaVersion.Summary(text, Indent, summary).Append(Indent).Append($"public {type}? {NameOf(attribute.Name)} ")
            .Append($"{{ get => {get}; set => {set}; }}\n");
    }

    private static void WriteInverse(SchemaVersion version, SchemaInverse inverse, int at, StringBuilder text)
    {
        bool isSingle = inverse.Form.Element is null;
        string type = isSingle
            ? version.Entity(inverse.Entity) + "?"
            : "IReadOnlyList<global::Korvan.CAD.FileFormats.Ifc.IIfcEntity>";
        string get = isSingle ? $"({type})SingleInverseAt({at})" : $"InverseAt({at})";
        string what = isSingle ? $"{inverse.Entity}" : $"instances of {inverse.Entity}";
        string summary = $"Gets the {what} whose attribute {inverse.Attribute} refers to this one.";
        SchemaVersion.Summary(text, Indent, summary).Append(Indent)
            .Append($"public {type} {NameOf(inverse.Name)} => {get};\n");
    }

    private static readonly Dictionary<SchemaShape, string> Getters = new Dictionary<SchemaShape, string>
    {
        [SchemaShape.Text] = "TextAt",
        [SchemaShape.Real] = "RealAt",
        [SchemaShape.Integer] = "IntegerAt",
        [SchemaShape.Boolean] = "BooleanAt",
        [SchemaShape.Logical] = "BooleanAt",
        [SchemaShape.Binary] = "BinaryAt",
        [SchemaShape.Aggregate] = "ListAt",
    };

    private static string TypeOf(SchemaVersion version, SchemaForm form, SchemaShape shape) => shape switch
    {
        SchemaShape.Text => "string",
        SchemaShape.Real => "double",
        SchemaShape.Integer => "long",
        SchemaShape.Boolean or SchemaShape.Logical => "bool",
        SchemaShape.Binary => "byte[]",
        SchemaShape.Enumeration => version.Enumeration(form),
        SchemaShape.Select => version.Type(form.Name),
        SchemaShape.Entity => version.Entity(form.Name),
        _ => "IList",
    };

    private static string NameOf(string name) => char.ToUpperInvariant(name[0]) + name.Substring(1);
}
