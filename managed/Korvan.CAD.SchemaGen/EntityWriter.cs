using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes the entities of an edition: a class each, with a property for each attribute of its own.</summary>
internal static class EntityWriter
{
    private const string Base = "global::Korvan.CAD.FileFormats.Ifc.IfcEntityBase";
    private const string Indent = "    ";

    internal static string Write(Edition edition)
    {
        StringBuilder text = Edition.Head(
            edition.Namespace + ".Entities", "using System.Collections;\nusing System.Collections.Generic;\n");
        foreach (SchemaEntity entity in edition.Table.Entities.Values)
        {
            WriteEntity(edition, entity, text);
        }

        return text.ToString();
    }

    private static void WriteEntity(Edition edition, SchemaEntity entity, StringBuilder text)
    {
        string title = $"The entity {entity.Name} of {edition.Table.Name}"
            + (entity.BaseName is null ? "" : $", derived from {entity.BaseName}")
            + (entity.IsAbstract ? "; it has no instances of its own." : ".");
        string parent = entity.BaseName is { } name ? edition.Entity(name) : Base;
        Edition.Summary(text, "", title).Append("public ").Append(entity.IsAbstract ? "abstract " : "")
            .Append("class ").Append(entity.Name).Append(edition.Suffix).Append(" : ").Append(parent).Append("\n{");
        int first = CountInherited(edition.Table, entity, static one => one.Attributes.Count);
        for (int i = 0; i < entity.Attributes.Count; i++)
        {
            WriteAttribute(edition, entity.Attributes[i], first + i, text);
        }

        first = CountInherited(edition.Table, entity, static one => one.Inverses.Count);
        for (int i = 0; i < entity.Inverses.Count; i++)
        {
            WriteInverse(edition, entity.Inverses[i], first + i, text);
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

    private static void WriteAttribute(Edition edition, SchemaAttribute attribute, int at, StringBuilder text)
    {
        SchemaShape shape = edition.Table.ShapeOf(attribute.Form);
        string form = attribute.Form.Describe();
        string optional = attribute.IsOptional ? "optional" : "mandatory";
        string summary = $"Gets or sets the attribute {attribute.Name}, {optional}: {form}.";
        string type = TypeOf(edition, attribute.Form, shape);
        string get = shape is SchemaShape.Enumeration or SchemaShape.Entity or SchemaShape.Select
            ? $"({type}?){shape}At({at})"
            : $"{Getters[shape]}({at})";
        string set = shape == SchemaShape.Enumeration ? $"PutEnumeration({at}, (int?)value)" : $"Put({at}, value)";
        Edition.Summary(text, Indent, summary).Append(Indent).Append($"public {type}? {NameOf(attribute.Name)} ")
            .Append($"{{ get => {get}; set => {set}; }}\n");
    }

    private static void WriteInverse(Edition edition, SchemaInverse inverse, int at, StringBuilder text)
    {
        bool isSingle = inverse.Form.Element is null;
        string type = isSingle
            ? edition.Entity(inverse.Entity) + "?"
            : "IReadOnlyList<global::Korvan.CAD.FileFormats.Ifc.IIfcEntity>";
        string get = isSingle ? $"({type})SingleInverseAt({at})" : $"InverseAt({at})";
        string what = isSingle ? $"{inverse.Entity} whose" : $"instances of {inverse.Entity} whose";
        string summary = $"Gets the {what} {inverse.Attribute} refers to this one.";
        Edition.Summary(text, Indent, summary).Append(Indent)
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

    private static string TypeOf(Edition edition, SchemaForm form, SchemaShape shape) => shape switch
    {
        SchemaShape.Text => "string",
        SchemaShape.Real => "double",
        SchemaShape.Integer => "long",
        SchemaShape.Boolean or SchemaShape.Logical => "bool",
        SchemaShape.Binary => "byte[]",
        SchemaShape.Enumeration => edition.Enumeration(form),
        SchemaShape.Select => edition.Type(form.Name),
        SchemaShape.Entity => edition.Entity(form.Name),
        _ => "IList",
    };

    private static string NameOf(string name) => char.ToUpperInvariant(name[0]) + name.Substring(1);
}
