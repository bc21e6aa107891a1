using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The columns of multi-line text. Release 2018 keeps them in an object embedded in the entity, older ones in extended
/// data between two named marks, as pairs of a group code and its value.
/// </summary>
internal readonly record struct MTextColumns(int Count, double Width, double Gutter, double Height)
{
    private const string Begin = "ACAD_MTEXT_COLUMN_INFO_BEGIN";
    private const string End = "ACAD_MTEXT_COLUMN_INFO_END";
    private const int MaxColumns = 1000;

    internal static MTextColumns Read(CadMText text)
    {
        if (text.Embedded is { } embedded)
        {
            return ReadEmbedded(embedded);
        }

        CadXdata? data = text.XdataOrNull?.Find("ACAD");
        return data == null ? default : Read(data.Data.ItemsOf());
    }

    private static MTextColumns ReadEmbedded(List<CadCodeValue> tags)
    {
        double Of(int code) => tags.Find(t => t.Attribute == code) is { } tag ? Number(tag) : 0;
        double count = Of(72);
        double height = Of(46);
        bool hasColumns = Of(71) != 0 && count is > 0 and < MaxColumns && Of(44) > 0;
        return hasColumns ? new MTextColumns((int)count, Of(44), Of(45), height > 0 ? height : Of(41)) : default;
    }

    private static MTextColumns Read(List<CadCodeValue> tags)
    {
        int at = tags.FindIndex(t => t.Value == Begin) + 1;
        if (at == 0)
        {
            return default;
        }

        int count = 0;
        double width = 0;
        double gutter = 0;
        double height = 0;
        for (; at + 1 < tags.Count && tags[at].Value != End; at += 2)
        {
            double value = Number(tags[at + 1]);
            switch ((int)Number(tags[at]))
            {
                case 76:
                    count = value is > 0 and < MaxColumns ? (int)value : 0;
                    break;
                case 48:
                    width = value;
                    break;
                case 49:
                    gutter = value;
                    break;
                case 50:
                    // The number of heights, then the heights; the first one serves for all.
                    height = at + 2 < tags.Count ? Number(tags[at + 2]) : 0;
                    at += (int)(value is > 0 and < MaxColumns ? value : 0);
                    break;
            }
        }

        return new MTextColumns(width > 0 ? count : 0, width, gutter, height);
    }

    private static double Number(CadCodeValue tag) =>
        double.TryParse(tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;
}
