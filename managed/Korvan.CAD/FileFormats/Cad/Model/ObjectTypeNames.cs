using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Types of objects that are not drawn by the names that stand in files.</summary>
internal static class ObjectTypeNames
{
    internal static CadObjectTypeName Parse(string name) => name switch
    {
        "DICTIONARY" => CadObjectTypeName.Dictionary,
        "ACDBDICTIONARYWDFLT" => CadObjectTypeName.DictionaryWithDefault,
        "DICTIONARYVAR" => CadObjectTypeName.DictionaryVar,
        "LAYOUT" => CadObjectTypeName.Layout,
        "PLOTSETTINGS" => CadObjectTypeName.PlotSettings,
        "GROUP" => CadObjectTypeName.Group,
        "XRECORD" => CadObjectTypeName.XRecord,
        "MLINESTYLE" => CadObjectTypeName.MLineStyle,
        "MLEADERSTYLE" => CadObjectTypeName.MLeaderStyle,
        "IMAGEDEF" => CadObjectTypeName.ImageDef,
        "IMAGEDEF_REACTOR" => CadObjectTypeName.ImageDefReactor,
        "WIPEOUTVARIABLES" => CadObjectTypeName.WipeoutVariables,
        "RASTERVARIABLES" => CadObjectTypeName.RasterVariables,
        "SPATIAL_FILTER" => CadObjectTypeName.SpatialFilter,
        "SPATIAL_INDEX" => CadObjectTypeName.SpatialIndex,
        "LAYER_FILTER" => CadObjectTypeName.LayerFilter,
        "SORTENTSTABLE" => CadObjectTypeName.SortEntsTable,
        "MATERIAL" => CadObjectTypeName.Material,
        "VISUALSTYLE" => CadObjectTypeName.VisualStyle,
        "SCALE" => CadObjectTypeName.Scale,
        "TABLESTYLE" => CadObjectTypeName.TableStyle,
        "CELLSTYLEMAP" => CadObjectTypeName.CellStyleMap,
        "FIELD" => CadObjectTypeName.Field,
        "FIELDLIST" => CadObjectTypeName.FieldList,
        "DIMASSOC" => CadObjectTypeName.DimAssoc,
        "GEODATA" => CadObjectTypeName.GeoData,
        "SUN" => CadObjectTypeName.Sun,
        "SUNSTUDY" => CadObjectTypeName.SunStudy,
        "ACDBPLACEHOLDER" => CadObjectTypeName.Placeholder,
        "DGNDEFINITION" => CadObjectTypeName.DgnDefinition,
        "DWFDEFINITION" => CadObjectTypeName.DwfDefinition,
        "PDFDEFINITION" => CadObjectTypeName.PdfDefinition,
        "TABLECONTENT" => CadObjectTypeName.TableContent,
        "TABLEGEOMETRY" => CadObjectTypeName.TableGeometry,
        "VBA_PROJECT" => CadObjectTypeName.VbaProject,
        "DATATABLE" => CadObjectTypeName.DataTable,
        "LIGHTLIST" => CadObjectTypeName.LightList,
        _ => CadObjectTypeName.None,
    };
}
