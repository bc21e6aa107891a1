using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The columns of a multiline text, which files of release 2018 and later state with it. Source: Open Design
/// Specification for .dwg files, 5.4.1, section 20.4.46.</summary>
[CadBits(
    "BD ExtentsWidth", "BD ExtentsHeight", "BS Kind", "if Kind != 0: BL Count", "if Kind != 0: BD Width",
    "if Kind != 0: BD Gutter", "if Kind != 0: B IsAutomatic", "if Kind != 0: B IsReversed",
    "if Kind == Dynamic && !IsAutomatic: ExchangeHeights()")]
internal sealed partial class TextColumns
{
    private const int Dynamic = 2;

    private readonly List<double> _heights = [];

    internal double ExtentsWidth { get; set; }

    internal double ExtentsHeight { get; set; }

    /// <summary>Gets or sets 0 for none, 1 for columns of one height, 2 for columns of their own heights.</summary>
    internal int Kind { get; set; }

    internal int Count { get; set; }

    internal double Width { get; set; }

    internal double Gutter { get; set; }

    internal bool IsAutomatic { get; set; }

    internal bool IsReversed { get; set; }

    /// <summary>Returns the columns that the embedded object of a text states.</summary>
    internal static TextColumns FromTags(List<CadCodeValue>? tags)
    {
        TextColumns columns = new();
        foreach (CadCodeValue tag in tags ?? [])
        {
            double value = double.TryParse(
                tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double number) ? number : 0;
            columns.Take(tag.Attribute, value);
        }

        columns.Count = columns._heights.Count > 0 ? columns._heights.Count : columns.Count;
        return columns;
    }

    /// <summary>Returns the embedded object with the columns.</summary>
    internal List<CadCodeValue> ToTags(CadMText text)
    {
        List<CadCodeValue> tags = [new(101, "Embedded Object"), Tag(70, (int)text.AttachmentPoint)];
        AddPoint(tags, 10, text.TextDirection);
        AddPoint(tags, 11, text.InsertionPoint);
        tags.AddRange(
        [
            Tag(40, text.ReferenceRectangleWidth), Tag(41, text.ReferenceRectangleHeight), Tag(42, ExtentsWidth),
            Tag(43, ExtentsHeight), Tag(71, Kind), Tag(72, Count), Tag(44, Width), Tag(45, Gutter),
            Tag(73, IsAutomatic ? 1 : 0), Tag(74, IsReversed ? 1 : 0),
        ]);
        _heights.ForEach(height => tags.Add(Tag(46, height)));
        return tags;
    }

    private static void AddPoint(List<CadCodeValue> tags, int code, Cad3DPoint point) =>
        tags.AddRange([Tag(code, point.X), Tag(code + 10, point.Y), Tag(code + 20, point.Z)]);

    private static CadCodeValue Tag(int code, double value) =>
        new(code, value.ToString("R", CultureInfo.InvariantCulture));

    private void Take(int code, double value)
    {
        switch (code)
        {
            case 42:
                ExtentsWidth = value;
                break;
            case 43:
                ExtentsHeight = value;
                break;
            case 71:
                Kind = (int)value;
                break;
            case 72:
                Count = (int)value;
                break;
            case 44:
                Width = value;
                break;
            case 45:
                Gutter = value;
                break;
            case 73:
                IsAutomatic = value != 0;
                break;
            case 74:
                IsReversed = value != 0;
                break;
            case 46:
                _heights.Add(value);
                break;
        }
    }

    private void ExchangeHeights(BitExchange fields)
    {
        int count = fields.Verify(Count);
        for (int i = 0; i < count; i++)
        {
            double height = fields.BitDouble(i < _heights.Count ? _heights[i] : 0);
            if (fields.IsReading)
            {
                _heights.Add(height);
            }
        }
    }
}
