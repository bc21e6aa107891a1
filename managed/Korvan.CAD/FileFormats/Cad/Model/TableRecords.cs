using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Which list of the drawing a record of a symbol table belongs to.</summary>
internal static class TableRecords
{
    /// <summary>The tables in the order that they are written in.</summary>
    internal static readonly string[] Names =
        ["VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"];

    internal static void Add(CadImage image, CadSymbolTableGroupCodes record)
    {
        switch (record)
        {
            case CadLayerTable layer:
                image.Layers.Add(layer);
                break;
            case CadLineTypeTableObject lineType:
                image.LineTypes.Add(lineType);
                break;
            case CadStyleTableObject style:
                image.Styles.Add(style);
                break;
            case CadDimensionStyleTable style:
                image.DimensionStyles.Add(style);
                break;
            case CadViewTableObject view:
                image.Views.Add(view);
                break;
            case CadVportTableObject port:
                image.ViewPorts.Add(port);
                break;
            case CadUcsTableObject ucs:
                image.UCSs.Add(ucs);
                break;
            case CadAppIdTableObject application:
                image.AppIdTables.Add(application);
                break;
            case CadBlockTableObject block:
                image.BlockRecords.Add(block);
                break;
        }
    }

    internal static IReadOnlyList<CadSymbolTableGroupCodes> Of(CadImage image, string name) => name switch
    {
        "VPORT" => image.ViewPorts.Items,
        "LTYPE" => image.LineTypes.Items,
        "LAYER" => image.Layers.Items,
        "STYLE" => image.Styles.Items,
        "VIEW" => image.Views.Items,
        "UCS" => image.UCSs.Items,
        "APPID" => image.AppIdTables.Items,
        "DIMSTYLE" => image.DimensionStyles.Items,
        _ => image.BlockRecords.Items,
    };
}
