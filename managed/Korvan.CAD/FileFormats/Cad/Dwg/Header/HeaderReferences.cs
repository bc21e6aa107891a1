using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>What the header section refers to: records that variables name, tables, dictionaries, and the records that
/// every drawing has.</summary>
internal static class HeaderReferences
{
    private static readonly (string Field, string Table)[] Tables =
    [
        ("blockTable", "BLOCK_RECORD"), ("layerTable", "LAYER"), ("styleTable", "STYLE"), ("lineTypeTable", "LTYPE"),
        ("viewTable", "VIEW"), ("ucsTable", "UCS"), ("viewportTable", "VPORT"), ("appIdTable", "APPID"),
        ("dimensionStyleTable", "DIMSTYLE"),
    ];

    private static readonly (string Field, string Entry)[] Dictionaries =
    [
        ("groups", "ACAD_GROUP"), ("multilineStyles", "ACAD_MLINESTYLE"), ("layouts", "ACAD_LAYOUT"),
        ("plotSettings", "ACAD_PLOTSETTINGS"), ("plotStyles", "ACAD_PLOTSTYLENAME"), ("materials", "ACAD_MATERIAL"),
        ("colors", "ACAD_COLOR"), ("visualStyles", "ACAD_VISUALSTYLE"),
    ];

    /// <summary>Returns the record that a variable names; 0 if there is none.</summary>
    internal static ulong HandleOf(CadDrawing drawing, HeaderField field, string name) => field.Name switch
    {
        "$CLAYER" => Find(drawing, "LAYER", name),
        "$CELTYPE" or "$DIMLTYPE" or "$DIMLTEX1" or "$DIMLTEX2" => Find(drawing, "LTYPE", name),
        "$TEXTSTYLE" or "$DIMTXSTY" => Find(drawing, "STYLE", name),
        "$DIMSTYLE" => Find(drawing, "DIMSTYLE", name),
        "$CMLSTYLE" => FindMultilineStyle(drawing, name),
        "$DIMBLK" or "$DIMBLK1" or "$DIMBLK2" or "$DIMLDRBLK" => Find(drawing, "BLOCK_RECORD", name),
        _ => Find(drawing, "UCS", name),
    };

    /// <summary>Sets the references that are no variables.</summary>
    internal static void Fill(HeaderValues values, CadDrawing drawing)
    {
        foreach ((string field, string table) in Tables)
        {
            Set(values, field, drawing.TableHeaders.TryGetValue(table, out CadTableHeader? header) ? header.Handle : 0);
        }

        CadDictionary? root = RootOf(drawing);
        Set(values, "namedObjects", root?.Handle ?? 0);
        foreach ((string field, string entry) in Dictionaries)
        {
            Set(values, field, EntryOf(root, entry));
        }

        Set(values, "modelSpace", Find(drawing, "BLOCK_RECORD", drawing.ModelSpace.Name));
        Set(values, "paperSpace", Find(drawing, "BLOCK_RECORD", drawing.PaperSpace.Name));
        Set(values, "byLayer", Find(drawing, "LTYPE", "ByLayer"));
        Set(values, "byBlock", Find(drawing, "LTYPE", "ByBlock"));
        Set(values, "continuous", Find(drawing, "LTYPE", "Continuous"));
    }

    /// <summary>Returns the handles that the second header of release 2000 repeats.</summary>
    internal static ulong[] ForSecondHeader(HeaderValues values) => Array.ConvertAll(
        (string[])["$HANDSEED", "blockTable", "layerTable", "styleTable", "lineTypeTable", "viewTable", "ucsTable",
            "viewportTable", "appIdTable", "dimensionStyleTable", "viewportEntityTable", "namedObjects",
            "multilineStyles", "groups"],
        values.HandleOf);

    // No other dictionary has the one of groups.
    private static CadDictionary? RootOf(CadDrawing drawing)
    {
        CadDictionary? first = null;
        foreach (CadObjectBase item in drawing.Objects)
        {
            if (item is CadDictionary dictionary && dictionary.Owner == 0)
            {
                first ??= dictionary;
                if (dictionary.TryGet("ACAD_GROUP", out _))
                {
                    return dictionary;
                }
            }
        }

        return first;
    }

    private static ulong EntryOf(CadDictionary? root, string name) =>
        root is not null && root.TryGet(name, out ulong handle) ? handle : 0;

    private static void Set(HeaderValues values, string field, ulong handle) =>
        values[field] = new HeaderValue(0) { Handle = handle };

    private static ulong Find(CadDrawing drawing, string table, string name)
    {
        foreach (CadSymbolTableGroupCodes record in TableRecords.Of(drawing, table))
        {
            if (name.Length > 0 && record.Name.Equals(name, StringComparison.OrdinalIgnoreCase))
            {
                return record.Handle;
            }
        }

        return 0;
    }

    private static ulong FindMultilineStyle(CadDrawing drawing, string name)
    {
        foreach (CadObjectBase item in drawing.Objects)
        {
            if (item is CadMLineStyleObject style && style.StyleName.Equals(name, StringComparison.OrdinalIgnoreCase))
            {
                return style.Handle;
            }
        }

        return 0;
    }
}
