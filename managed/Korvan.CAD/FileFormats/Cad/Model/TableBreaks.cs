using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Reads the parts of a table from the record in which drawings keep what tables of release 2008 added.
/// </summary>
internal static class TableBreaks
{
    private const string Marker = "ACAD_ROUNDTRIP_2008_TABLE_ENTITY";
    private const int GroupName = 102;
    private const int PointX = 10;
    private const int PointY = 20;
    private const int PointZ = 30;
    private const int Row = 90;

    internal static CadBreakData[] Read(IList<CadCodeValue> tags)
    {
        List<CadBreakData> parts = [];
        int start = tags.Count;
        for (int i = 0; i < tags.Count; i++)
        {
            start = tags[i].Attribute == GroupName && tags[i].Value.Trim() == Marker ? i : start;
        }

        // Each part has a point and two rows.
        for (int i = start; i + 4 < tags.Count; i++)
        {
            if (tags[i].Attribute == PointX && tags[i + 1].Attribute == PointY && tags[i + 2].Attribute == PointZ
                && tags[i + 3].Attribute == Row && tags[i + 4].Attribute == Row)
            {
                Cad3DPoint offset = new(
                    tags[i].GetDoubleValue(), tags[i + 1].GetDoubleValue(), tags[i + 2].GetDoubleValue());
                parts.Add(new CadBreakData(offset, tags[i + 3].GetIntValue(), tags[i + 4].GetIntValue()));
            }
        }

        return [.. parts];
    }
}
