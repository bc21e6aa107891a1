using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A line type.</summary>
[CadObject("LTYPE", Subclass = "AcDbLinetypeTableRecord")]
[CadBits("ExchangeRecord()", "T Description", "BD PatternLength", "RC = 65", "ExchangePattern()")]
public partial class CadLineTypeTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLineTypeTableObject()
    {
    }

    /// <summary>Gets or sets the description. Group code 3.</summary>
    [CadString(3)]
    public string Description { get; set; } = "";

    /// <summary>Gets the lengths of the pattern in drawing units: above 0 a dash, below 0 a gap, 0 a dot. Empty for
    /// a solid line. The list is live. Group code 49.</summary>
    public List<double> Pattern { get; } = [];

    /// <summary>Gets or sets the length of the whole pattern, in drawing units. Group code 40.</summary>
    public double PatternLength { get; set; }

    /// <summary>Gets whether the pattern has texts or shapes in it.</summary>
    public bool IsComplex => ComplexTags.Count > 0;

    /// <summary>Gets the tags of texts and shapes, with the number of the element that each follows.</summary>
    internal List<(int Element, CadCodeValue Tag)> ComplexTags { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 49:
                Pattern.Add(reader.GetDouble());
                break;
            case 40:
                PatternLength = reader.GetDouble();
                break;
            case 72 or 73:
                break;
            case 74 when reader.GetInt() == 0:
                break;
            case 74 or 75 or 340 or 46 or 50 or 44 or 45 or 9:
                ComplexTags.Add((Pattern.Count, reader.ToCodeValue()));
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        const int alignment = 65;
        fields.Int16(72, alignment);
        int count = fields.Count(73, Pattern.Count);
        PatternLength = fields.Double(40, PatternLength);
        for (int i = 0; i < count; i++)
        {
            fields.ItemAt(49, Pattern, i, 0);
            ExchangeElement(fields, i + 1);
        }
    }

    private void ExchangeElement(ObjectExchange fields, int element)
    {
        List<CadCodeValue> tags = ComplexTags.FindAll(tag => tag.Element == element).ConvertAll(tag => tag.Tag);
        bool plain = fields.Includes(0, tags.Count == 0);
        if (!plain)
        {
            fields.Tags(tags);
        }
        else if (fields.Includes(1994, true))
        {
            fields.Int16(74, 0);
        }

        if (fields.IsReading)
        {
            tags.ForEach(tag => ComplexTags.Add((element, tag)));
        }
    }

    // The strings of all elements are in one area of bytes, in which an element states its place.
    private void ExchangePattern(BitExchange fields)
    {
        List<LineTypeElement> elements = LineTypeElement.From(Pattern, ComplexTags);
        int count = fields.CountByte(elements.Count);
        byte[] area = LineTypeElement.PackStrings(elements, fields.Release >= 2007);
        for (int i = 0; i < count; i++)
        {
            fields.Item(elements, i).ExchangeBits(fields);
        }

        if (fields.Release < 2007 || elements.Exists(static element => element.IsText))
        {
            area = fields.Bytes(area, fields.Release < 2007 ? 256 : 512);
        }

        elements.ForEach(element => element.ExchangeStyle(fields));
        if (fields.IsReading)
        {
            elements.ForEach(element => element.AddTo(Pattern, ComplexTags, area, fields.Release >= 2007));
        }
    }
}
