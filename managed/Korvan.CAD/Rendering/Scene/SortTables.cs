using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The objects that keep a draw order of their own: for the block of code 330, pairs of an entity (331) and the
/// handle that it sorts by (5).
/// </summary>
internal static class SortTables
{
    private const string TypeName = "SORTENTSTABLE";

    internal static Dictionary<ulong, Dictionary<ulong, ulong>> Read(IEnumerable<CadObjectBase> objects)
    {
        var tables = new Dictionary<ulong, Dictionary<ulong, ulong>>();
        foreach (CadObjectBase table in objects)
        {
            if (table.TypeNameText == TypeName)
            {
                Read(table, tables);
            }
        }

        return tables;
    }

    private static void Read(CadObjectBase table, Dictionary<ulong, Dictionary<ulong, ulong>> tables)
    {
        var order = new Dictionary<ulong, ulong>();
        ulong block = 0;
        ulong entity = 0;
        foreach (CadCodeValue tag in table.UnknownCodes)
        {
            if (!ulong.TryParse(tag.Value, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture,
                out ulong handle))
            {
                continue;
            }

            switch (tag.Attribute)
            {
                case 330:
                    block = handle;
                    break;
                case 331:
                    entity = handle;
                    break;
                case 5 when entity != 0:
                    order[entity] = handle;
                    entity = 0;
                    break;
            }
        }

        if (block != 0 && order.Count > 0)
        {
            tables[block] = order;
        }
    }
}
