using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Korvan.CAD.CodecGen;

/// <summary>Writes the exchange of a class whose fields files have in declared order: one walk reads and writes them.
/// </summary>
internal static class SequenceText
{
    public static void Write(CadClass model, StringBuilder text)
    {
        if (model.IsPartOfObject)
        {
            WriteWalk("internal void Exchange", model.Properties, model, true, text);
            return;
        }

        List<Section> sections = [.. SectionsOf(model)];
        WriteReading(sections, model, text);
        WriteMarkers(sections, model, text);
        text.AppendLine($"    internal override void Exchange({CodecWriter.Walk} fields)");
        text.AppendLine("    {");
        text.AppendLine("        base.Exchange(fields);");
        model.Leading.ToList().ForEach(marker => WriteMarker(marker, "", text));
        sections.ForEach(section => WriteMarker(
            section.Subclass, $"{section.Method}(fields);", text, section == sections.Last() ? model : null));
        model.Trailing.ToList().ForEach(marker => WriteMarker(marker, "", text));
        text.AppendLine("    }");
        foreach (Section section in sections)
        {
            WriteWalk($"private void {section.Method}", section.Properties, model, section == sections.Last(), text);
        }
    }

    private static IEnumerable<Section> SectionsOf(CadClass model)
    {
        Section current = new(model.Subclass ?? "", $"Exchange{model.Name}Fields");
        foreach (CadProperty property in model.Properties)
        {
            if (property.Subclass is { } next)
            {
                yield return current;
                current = new Section(next, $"Exchange{next}Fields");
            }

            current.Properties.Add(property);
        }

        yield return current;
    }

    private static void WriteReading(List<Section> sections, CadClass model, StringBuilder text)
    {
        text.AppendLine($"    internal override bool ReadField(int code, {CodecWriter.Reader} reader)");
        text.AppendLine("    {");
        text.AppendLine("        return reader.Subclass switch");
        text.AppendLine("        {");
        foreach (Section section in sections)
        {
            text.AppendLine($"            {Pattern(section, sections, model)} => "
                + $"{CodecWriter.Exchange}.SequenceReader.Read(this, reader, {section.Method}),");
        }

        text.AppendLine("            _ => base.ReadField(code, reader),");
        text.AppendLine("        };");
        text.AppendLine("    }");
    }

    // Which markers the class knows: objects keep what follows others as it is.
    private static void WriteMarkers(List<Section> sections, CadClass model, StringBuilder text)
    {
        IEnumerable<string> known = sections.Select(section => Pattern(section, sections, model))
            .Concat(model.Leading.Concat(model.Trailing).Select(marker => $"\"{marker}\""));
        text.AppendLine("    internal override bool HasOrderedFields => true;");
        text.AppendLine("    internal override bool HasSubclass(string? name) =>");
        string others = !model.IsSequenceBase ? " || base.HasSubclass(name)"
            : model.Kind == "CadEntityBase" ? " or \"AcDbEntity\"" : "";
        text.AppendLine($"        name is {string.Join(" or ", known)}{others};");
    }

    private static string Pattern(Section section, List<Section> sections, CadClass model)
    {
        string own = section.Subclass.Length == 0 ? "null" : $"\"{section.Subclass}\"";
        bool hasAlias = section == sections.Last() && model.AliasSubclass.Length > 0;
        return hasAlias ? $"{own} or \"{model.AliasSubclass}\"" : own;
    }

    private static void WriteMarker(string name, string content, StringBuilder text, CadClass? last = null)
    {
        string marker = last is { AliasSubclass.Length: > 0 }
            ? $"KeptTags?.ObjectName == \"{last.Alias}\" ? \"{last.AliasSubclass}\" : \"{name}\"" : $"\"{name}\"";
        text.AppendLine($"        BeginSubclass(fields, {marker});");
        if (content.Length > 0)
        {
            text.AppendLine($"        {content}");
        }

        text.AppendLine($"        fields.EndSubclass(this, {marker});");
    }

    private static void WriteWalk(
        string method, IEnumerable<CadProperty> properties, CadClass model, bool isLast, StringBuilder text)
    {
        text.AppendLine($"    {method}({CodecWriter.Walk} fields)");
        text.AppendLine("    {");
        WriteLabels(model.IsPartOfObject ? model.Labels : [], text);
        foreach (CadProperty property in properties)
        {
            WriteProperty(property, text);
        }

        if (isLast)
        {
            text.AppendLine("        OnExchange(fields);");
        }

        WriteLabels(isLast ? model.Ends : [], text);
        text.AppendLine("    }");
    }

    private static void WriteProperty(CadProperty property, StringBuilder text)
    {
        string[] conditions =
        [
            .. new[] { property.When, FieldText.Presence(property) }.Where(condition => condition.Length > 0),
        ];
        if (conditions.Length > 0)
        {
            text.AppendLine($"        if ({string.Join(" && ", conditions)})");
        }

        text.AppendLine("        {");
        WriteLabels(property.Labels, text);
        text.AppendLine($"            {FieldText.InSequence(property, CodecWriter.Exchange)};");
        text.AppendLine("        }");
    }

    private static void WriteLabels(IEnumerable<CadLabel> labels, StringBuilder text)
    {
        foreach (CadLabel label in labels)
        {
            text.AppendLine($"        fields.Brace({label.Code}, \"{label.Text}\");");
        }
    }

    /// <summary>The fields between two markers.</summary>
    private sealed class Section(string subclass, string method)
    {
        public string Subclass { get; } = subclass;

        public string Method { get; } = method;

        public List<CadProperty> Properties { get; } = [];
    }
}
