using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Which list of the drawing a record of a symbol table belongs to.</summary>
internal static class TableRecords
{
    /// <summary>The tables in the order that they are written in.</summary>
    internal static readonly string[] Names =
        ["VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"];

    internal static void Add(CadDrawing drawing, CadSymbolTableGroupCodes record)
    {
        switch (record)
        {
            case CadLayerTable layer:
                drawing.Layers.Add(layer);
                break;
            case CadLineTypeTableObject lineType:
                drawing.LineTypes.Add(lineType);
                break;
            case CadStyleTableObject style:
                drawing.Styles.Add(style);
                break;
            case CadDimensionStyleTable style:
                drawing.DimensionStyles.Add(style);
                break;
            case CadViewTableObject view:
                drawing.Views.Add(view);
                break;
            case CadVportTableObject port:
                drawing.ViewPorts.Add(port);
                break;
            case CadUcsTableObject ucs:
                drawing.UCSs.Add(ucs);
                break;
            case CadAppIdTableObject application:
                drawing.AppIdTables.Add(application);
                break;
            case CadBlockTableObject block:
                drawing.BlockRecords.Add(block);
                break;
        }
    }

    internal static IReadOnlyList<CadSymbolTableGroupCodes> Of(CadDrawing drawing, string name) => name switch
    {
        "VPORT" => drawing.ViewPorts.Items,
        "LTYPE" => drawing.LineTypes.Items,
        "LAYER" => drawing.Layers.Items,
        "STYLE" => drawing.Styles.Items,
        "VIEW" => drawing.Views.Items,
        "UCS" => drawing.UCSs.Items,
        "APPID" => drawing.AppIdTables.Items,
        "DIMSTYLE" => drawing.DimensionStyles.Items,
        _ => drawing.BlockRecords.Items,
    };
}
