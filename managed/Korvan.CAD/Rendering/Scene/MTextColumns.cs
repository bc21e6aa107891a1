using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// Reads the columns of multi-line text. Release 2018 keeps them in an object embedded in the entity, older ones in
/// extended data between two named marks, as pairs of a group code and its value.
/// </summary>
internal static class MTextColumns
{
    private const string Begin = "ACAD_MTEXT_COLUMN_INFO_BEGIN";
    private const string End = "ACAD_MTEXT_COLUMN_INFO_END";
    private const int MaxColumns = 1000;
    private const int Dynamic = 2;

    /// <summary>Returns the columns of a text; null if it has none.</summary>
    internal static TextColumnFrame? Read(CadMText text)
    {
        List<CadCodeValue> tags = text.Embedded ?? [];
        if (text.Embedded is null)
        {
            List<CadCodeValue>? data = text.XdataOrNull?.Find("ACAD")?.Data.ItemsOf();
            return data is null ? null : Read(data, text.ReferenceRectangleHeight);
        }

        double Of(int code) => tags.Find(t => t.Attribute == code) is { } tag ? Number(tag) : 0;
        List<double> heights = tags.FindAll(static t => t.Attribute == 46).ConvertAll(Number);
        return Create(Of(71), Of(72), Of(73) != 0, Of(44), Of(45), heights, Of(41));
    }

    private static TextColumnFrame? Read(List<CadCodeValue> tags, double height)
    {
        int at = tags.FindIndex(t => t.Value == Begin) + 1;
        if (at == 0)
        {
            return null;
        }

        var values = new Dictionary<int, double>();
        var heights = new List<double>();
        for (; at + 1 < tags.Count && tags[at].Value != End; at += 2)
        {
            int code = (int)Number(tags[at]);
            values[code] = Number(tags[at + 1]);
            if (code == 50)
            {
                // The number of heights, then the heights.
                int count = values[code] is > 0 and < MaxColumns ? (int)values[code] : 0;
                heights = tags.GetRange(at + 2, Math.Min(count, tags.Count - at - 2)).ConvertAll(Number);
                at += count;
            }
        }

        double Of(int code) => values.GetValueOrDefault(code);
        return Create(Of(75), Of(76), Of(79) != 0, Of(48), Of(49), heights, height);
    }

    // Columns of heights of their own end with the last one; of one height, there are as many as the text needs, or,
    // where they are static, as the text says.
    private static TextColumnFrame? Create(
        double kind, double count, bool isAutomatic, double width, double gutter, List<double> heights, double height)
    {
        bool isOpen = kind == Dynamic && isAutomatic && height > 0;
        if (kind == 0 || !(width > 0) || !(isOpen || count is > 0 and < MaxColumns))
        {
            return null;
        }

        return new TextColumnFrame(
            isOpen ? MaxColumns : (int)count, width, gutter, heights.Count > 0 && !isOpen ? heights : [height]);
    }

    private static double Number(CadCodeValue tag) =>
        double.TryParse(tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;
}
