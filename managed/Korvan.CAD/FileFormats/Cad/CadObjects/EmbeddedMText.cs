using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The text of several lines of an attribute, which text files have in an embedded object.</summary>
internal static class EmbeddedMText
{
    private const int Start = 101;
    private const int MaxChunk = 250;

    /// <summary>Returns the embedded object.</summary>
    internal static List<CadCodeValue> ToTags(CadMText text)
    {
        List<CadCodeValue> tags = [new(Start, "Embedded Object")];
        AddPoint(tags, 10, text.InsertionPoint);
        tags.AddRange(
        [
            Tag(40, text.InitialTextHeight), Tag(41, text.ReferenceRectangleWidth),
            Tag(46, text.ReferenceRectangleHeight), Tag(71, (int)text.AttachmentPoint),
            Tag(72, (int)text.DrawingDirection),
        ]);
        string rest = text.Text;
        for (; rest.Length > MaxChunk; rest = rest[MaxChunk..])
        {
            tags.Add(new CadCodeValue(3, rest[..MaxChunk]));
        }

        tags.AddRange([new CadCodeValue(1, rest), new CadCodeValue(7, text.TextStyleName)]);
        AddPoint(tags, 210, text.ExtrusionDirection);
        AddPoint(tags, 11, text.TextDirection);
        tags.AddRange([Tag(73, (int)text.LineSpacingStyle), Tag(44, text.LineSpacingFactor)]);
        return tags;
    }

    /// <summary>Returns the text of an embedded object; null where there is none.</summary>
    internal static CadMText? FromTags(List<CadCodeValue>? tags)
    {
        if (tags is not { Count: > 0 })
        {
            return null;
        }

        CadMText text = new();
        StringBuilder content = new();
        HashSet<int> seen = [];
        foreach (CadCodeValue tag in tags)
        {
            if (tag.Attribute is 1 or 3)
            {
                content.Append(tag.Value);
            }
            else if (seen.Add(tag.Attribute))
            {
                Take(text, tag);
            }
        }

        text.Text = content.ToString();
        return seen.Contains(10) ? text : null;
    }

    private static void Take(CadMText text, CadCodeValue tag)
    {
        double value = double.TryParse(
            tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double number) ? number : 0;
        switch (tag.Attribute)
        {
            case 40:
                text.InitialTextHeight = value;
                break;
            case 41:
                text.ReferenceRectangleWidth = value;
                break;
            case 46:
                text.ReferenceRectangleHeight = value;
                break;
            case 71:
                text.AttachmentPoint = (CadAttachmentPoint)(short)value;
                break;
            case 72:
                text.DrawingDirection = (CadDrawingDirection)(short)value;
                break;
            case 7:
                text.TextStyleName = tag.Value;
                break;
            case 73:
                text.LineSpacingStyle = (CadLineSpacing)(short)value;
                break;
            case 44:
                text.LineSpacingFactor = value;
                break;
            default:
                TakePoint(text, tag.Attribute, value);
                break;
        }
    }

    private static void TakePoint(CadMText text, int code, double value)
    {
        (Cad3DPoint? point, int axis) = code switch
        {
            10 or 20 or 30 => (text.InsertionPoint, (code / 10) - 1),
            11 or 21 or 31 => (text.TextDirection, (code / 10) - 1),
            210 or 220 or 230 => (text.ExtrusionDirection, (code / 10) - 21),
            _ => (null, 0),
        };
        if (point is null)
        {
            return;
        }

        (point.X, point.Y, point.Z) = axis switch
        {
            0 => (value, point.Y, point.Z),
            1 => (point.X, value, point.Z),
            _ => (point.X, point.Y, value),
        };
    }

    private static void AddPoint(List<CadCodeValue> tags, int code, Cad3DPoint point) =>
        tags.AddRange([Tag(code, point.X), Tag(code + 10, point.Y), Tag(code + 20, point.Z)]);

    private static CadCodeValue Tag(int code, double value) =>
        new(code, value.ToString("R", CultureInfo.InvariantCulture));
}
