using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The classes of a file that is written: those of the drawing first, so that kept records keep their
/// numbers.</summary>
internal sealed class WrittenClasses
{
    private const int FirstNumber = 500;
    private const string Library = "ObjectDBX Classes";

    private static readonly Dictionary<string, (string Class, int Flags)> Known = new()
    {
        ["ACDBDICTIONARYWDFLT"] = ("AcDbDictionaryWithDefault", 0),
        ["DICTIONARYVAR"] = ("AcDbDictionaryVar", 0),
        ["IMAGE"] = ("AcDbRasterImage", 127),
        ["IMAGEDEF"] = ("AcDbRasterImageDef", 0),
        ["IMAGEDEF_REACTOR"] = ("AcDbRasterImageDefReactor", 1),
        ["RASTERVARIABLES"] = ("AcDbRasterVariables", 0),
        ["WIPEOUT"] = ("AcDbWipeout", 127),
        ["MULTILEADER"] = ("AcDbMLeader", 1025),
        ["MLEADERSTYLE"] = ("AcDbMLeaderStyle", 4095),
        ["MATERIAL"] = ("AcDbMaterial", 1153),
        ["SUN"] = ("AcDbSun", 1153),
        ["FIELD"] = ("AcDbField", 1152),
        ["FIELDLIST"] = ("AcDbFieldList", 1152),
        ["DBCOLOR"] = ("AcDbColor", 0),
        ["HELIX"] = ("AcDbHelix", 4095),
        ["MESH"] = ("AcDbSubDMesh", 0),
        ["LIGHT"] = ("AcDbLight", 1153),
        ["SECTIONOBJECT"] = ("AcDbSection", 1153),
        ["GEODATA"] = ("AcDbGeoData", 4095),
        ["PLOTSETTINGS"] = ("AcDbPlotSettings", 0),
        ["SPATIAL_FILTER"] = ("AcDbSpatialFilter", 0),
        ["LAYER_FILTER"] = ("AcDbLayerFilter", 0),
        ["PDFUNDERLAY"] = ("AcDbPdfReference", 4095),
        ["PDFDEFINITION"] = ("AcDbPdfDefinition", 1153),
        ["DWFUNDERLAY"] = ("AcDbDwfReference", 1153),
        ["DWFDEFINITION"] = ("AcDbDwfDefinition", 1153),
        ["DGNUNDERLAY"] = ("AcDbDgnReference", 1153),
        ["DGNDEFINITION"] = ("AcDbDgnDefinition", 1153),
        ["SCALE"] = ("AcDbScale", 1153),
        ["SORTENTSTABLE"] = ("AcDbSortentsTable", 0),
        ["IDBUFFER"] = ("AcDbIdBuffer", 0),
        ["ACAD_TABLE"] = ("AcDbTable", 1025),
        ["TABLESTYLE"] = ("AcDbTableStyle", 4095),
        ["CELLSTYLEMAP"] = ("AcDbCellStyleMap", 1152),
        ["TABLECONTENT"] = ("AcDbTableContent", 1152),
        ["TABLEGEOMETRY"] = ("AcDbTableGeometry", 1152),
        ["VISUALSTYLE"] = ("AcDbVisualStyle", 4095),
        ["ACDBDETAILVIEWSTYLE"] = ("AcDbDetailViewStyle", 1025),
        ["ACDBSECTIONVIEWSTYLE"] = ("AcDbSectionViewStyle", 1025),
        ["ACDB_TEXTOBJECTCONTEXTDATA_CLASS"] = ("AcDbTextObjectContextData", 1153),
        ["ACDB_LEADEROBJECTCONTEXTDATA_CLASS"] = ("AcDbLeaderObjectContextData", 1153),
        ["ACDB_BLKREFOBJECTCONTEXTDATA_CLASS"] = ("AcDbBlkRefObjectContextData", 1153),
        ["ACDB_FCFOBJECTCONTEXTDATA_CLASS"] = ("AcDbFcfObjectContextData", 1153),
        ["PLANESURFACE"] = ("AcDbPlaneSurface", 4095),
        ["EXTRUDEDSURFACE"] = ("AcDbExtrudedSurface", 4095),
        ["LOFTEDSURFACE"] = ("AcDbLoftedSurface", 4095),
        ["REVOLVEDSURFACE"] = ("AcDbRevolvedSurface", 4095),
        ["SWEPTSURFACE"] = ("AcDbSweptSurface", 4095),
    };

    private readonly List<CadClassEntity> _classes;

    internal WrittenClasses(IEnumerable<CadClassEntity> classes) => _classes = [.. classes];

    internal IReadOnlyList<CadClassEntity> All => _classes;

    /// <summary>Determines whether the class of a name in files can be stated.</summary>
    internal static bool IsKnown(string name) => Known.ContainsKey(name);

    /// <summary>Determines whether the drawing states a class of a name.</summary>
    internal bool Has(string name) => _classes.Exists(item => item.DxfRecordName == name);

    /// <summary>Returns the number of the class of an object; it is added where the drawing does not state
    /// it.</summary>
    internal int NumberOf(CadBaseObject item)
    {
        int index = _classes.FindIndex(known => known.DxfRecordName == item.DxfName);
        if (index >= 0)
        {
            return FirstNumber + index;
        }

        (string name, int flags) = Known.GetValueOrDefault(item.DxfName, (item.DxfName, 0));
        _classes.Add(new CadClassEntity
        {
            DxfRecordName = item.DxfName,
            ClassName = name,
            ApplicationName = Library,
            ProxyFlags = flags,
            IsEntity = item is CadEntityBase,
        });
        return FirstNumber + _classes.Count - 1;
    }
}
