using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The classes of a file that is written: those of the drawing first, so that kept records keep their
/// numbers.</summary>
internal sealed class WrittenClasses
{
    private const int FirstNumber = 500;
    private const string Library = "ObjectDBX Classes";
    private const string Fallback = "ACDBDICTIONARYWDFLT";

    private static readonly Dictionary<string, (string Class, int Flags)> Known = new()
    {
        [Fallback] = ("AcDbDictionaryWithDefault", 0),
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
        ["OBJECT_PTR"] = ("CAseDLPNTableRecord", 1),
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
        ["BLOCKALIGNMENTGRIP"] = ("AcDbBlockAlignmentGrip", 1153),
        ["BLOCKALIGNMENTPARAMETER"] = ("AcDbBlockAlignmentParameter", 1153),
        ["BLOCKARRAYACTION"] = ("AcDbBlockArrayAction", 1153),
        ["BLOCKBASEPOINTPARAMETER"] = ("AcDbBlockBasepointParameter", 1153),
        ["BLOCKFLIPACTION"] = ("AcDbBlockFlipAction", 1153),
        ["BLOCKFLIPGRIP"] = ("AcDbBlockFlipGrip", 1153),
        ["BLOCKFLIPPARAMETER"] = ("AcDbBlockFlipParameter", 1153),
        ["BLOCKGRIPLOCATIONCOMPONENT"] = ("AcDbBlockGripExpr", 1153),
        ["BLOCKLINEARGRIP"] = ("AcDbBlockLinearGrip", 1153),
        ["BLOCKLINEARPARAMETER"] = ("AcDbBlockLinearParameter", 1153),
        ["BLOCKMOVEACTION"] = ("AcDbBlockMoveAction", 1153),
        ["BLOCKPOINTPARAMETER"] = ("AcDbBlockPointParameter", 1153),
        ["BLOCKPOLARGRIP"] = ("AcDbBlockPolarGrip", 1153),
        ["BLOCKPOLARPARAMETER"] = ("AcDbBlockPolarParameter", 1153),
        ["BLOCKPOLARSTRETCHACTION"] = ("AcDbBlockPolarStretchAction", 1153),
        ["BLOCKROTATEACTION"] = ("AcDbBlockRotateAction", 1153),
        ["BLOCKROTATIONGRIP"] = ("AcDbBlockRotationGrip", 1153),
        ["BLOCKROTATIONPARAMETER"] = ("AcDbBlockRotationParameter", 1153),
        ["BLOCKSCALEACTION"] = ("AcDbBlockScaleAction", 1153),
        ["BLOCKSTRETCHACTION"] = ("AcDbBlockStretchAction", 1153),
        ["BLOCKVISIBILITYGRIP"] = ("AcDbBlockVisibilityGrip", 1153),
        ["BLOCKVISIBILITYPARAMETER"] = ("AcDbBlockVisibilityParameter", 1153),
        ["BLOCKXYGRIP"] = ("AcDbBlockXYGrip", 1153),
        ["BLOCKXYPARAMETER"] = ("AcDbBlockXYParameter", 1153),
        ["ACDB_DYNAMICBLOCKPROXYNODE"] = ("AcDbDynamicBlockProxyNode", 1153),
        ["ACAD_EVALUATION_GRAPH"] = ("AcDbEvalGraph", 1153),
        ["ACSH_BOX_CLASS"] = ("AcDbShBox", 1153),
        ["ACSH_CONE_CLASS"] = ("AcDbShCone", 1153),
        ["ACSH_CYLINDER_CLASS"] = ("AcDbShCylinder", 1153),
        ["ACSH_EXTRUSION_CLASS"] = ("AcDbShExtrusion", 1153),
        ["ACSH_HISTORY_CLASS"] = ("AcDbShHistory", 1153),
        ["ACSH_PYRAMID_CLASS"] = ("AcDbShPyramid", 1153),
        ["ACSH_SPHERE_CLASS"] = ("AcDbShSphere", 1153),
        ["ACSH_SWEEP_CLASS"] = ("AcDbShSweep", 1153),
        ["ACSH_TORUS_CLASS"] = ("AcDbShTorus", 1153),
        ["ACSH_WEDGE_CLASS"] = ("AcDbShWedge", 1153),
        ["LIGHTLIST"] = ("AcDbLightList", 1153),
        ["SECTIONMANAGER"] = ("AcDbSectionManager", 1153),
        ["SECTIONSETTINGS"] = ("AcDbSectionSettings", 1153),
        ["SUNSTUDY"] = ("AcDbSunStudy", 1153),
        ["ACDBASSOC2DCONSTRAINTGROUP"] = ("AcDbAssoc2dConstraintGroup", 1025),
        ["ACDBASSOCACTION"] = ("AcDbAssocAction", 1025),
        ["ACDBASSOCALIGNEDDIMACTIONBODY"] = ("AcDbAssocAlignedDimActionBody", 1025),
        ["ACDBASSOCDEPENDENCY"] = ("AcDbAssocDependency", 1025),
        ["ACDBASSOCEDGEACTIONPARAM"] = ("AcDbAssocEdgeActionParam", 1025),
        ["ACDBASSOCEXTRUDEDSURFACEACTIONBODY"] = ("AcDbAssocExtrudedSurfaceActionBody", 1025),
        ["ACDBASSOCGEOMDEPENDENCY"] = ("AcDbAssocGeomDependency", 1025),
        ["ACDBASSOCLOFTEDSURFACEACTIONBODY"] = ("AcDbAssocLoftedSurfaceActionBody", 1025),
        ["ACDBASSOCNETWORK"] = ("AcDbAssocNetwork", 1025),
        ["ACDBASSOCOSNAPPOINTREFACTIONPARAM"] = ("AcDbAssocOsnapPointRefActionParam", 1025),
        ["ACDBASSOCPATHACTIONPARAM"] = ("AcDbAssocPathActionParam", 1025),
        ["ACDBASSOCPERSSUBENTMANAGER"] = ("AcDbAssocPersSubentManager", 1024),
        ["ACDBASSOCPLANESURFACEACTIONBODY"] = ("AcDbAssocPlaneSurfaceActionBody", 1025),
        ["ACDBASSOCREVOLVEDSURFACEACTIONBODY"] = ("AcDbAssocRevolvedSurfaceActionBody", 1025),
        ["ACDBASSOCSWEPTSURFACEACTIONBODY"] = ("AcDbAssocSweptSurfaceActionBody", 1025),
        ["ACDBASSOCVALUEDEPENDENCY"] = ("AcDbAssocValueDependency", 1025),
        ["ACDBASSOCVARIABLE"] = ("AcDbAssocVariable", 1025),
        ["ACDBASSOCVERTEXACTIONPARAM"] = ("AcDbAssocVertexActionParam", 1025),
        ["ACDBPERSSUBENTMANAGER"] = ("AcDbPersSubentManager", 1024),
        ["ASSOCDIMDEPENDENCYBODY"] = ("AcDbAssocDimDependencyBody", 1025),
        ["ACDB_ALDIMOBJECTCONTEXTDATA_CLASS"] = ("AcDbAlignedDimensionObjectContextData", 1024),
        ["ACDB_MTEXTOBJECTCONTEXTDATA_CLASS"] = ("AcDbMTextObjectContextData", 1024),
        ["ACDB_BLOCKREPRESENTATION_DATA"] = ("AcDbBlockRepresentationData", 1153),
        ["ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION"] = ("AcDbDynamicBlockPurgePreventer", 1153),
        ["ARC_DIMENSION"] = ("AcDbArcDimension", 1025),
        ["LARGE_RADIAL_DIMENSION"] = ("AcDbRadialDimensionLarge", 1025),
        ["COORDINATION_MODEL"] = ("AcDbNavisworksModel", 1025),
        ["DATATABLE"] = ("AcDbDataTable", 0),
        ["DIMASSOC"] = ("AcDbDimAssoc", 0),
        ["WIPEOUTVARIABLES"] = ("AcDbWipeoutVariables", 0),
        ["MENTALRAYRENDERSETTINGS"] = ("AcDbMentalRayRenderSettings", 1024),
        ["RAPIDRTRENDERSETTINGS"] = ("AcDbRapidRTRenderSettings", 1024),
        ["RENDERENVIRONMENT"] = ("AcDbRenderEnvironment", 1024),
        ["RENDERGLOBAL"] = ("AcDbRenderGlobal", 1024),
        ["GRADIENT_BACKGROUND"] = ("AcDbGradientBackground", 4095),
        ["SKYLIGHT_BACKGROUND"] = ("AcDbSkyBackground", 4095),
        ["SOLID_BACKGROUND"] = ("AcDbSolidBackground", 4095),
        ["EXTRUDEDSURFACE"] = ("AcDbExtrudedSurface", 4095),
        ["LOFTEDSURFACE"] = ("AcDbLoftedSurface", 4095),
        ["REVOLVEDSURFACE"] = ("AcDbRevolvedSurface", 4095),
        ["SWEPTSURFACE"] = ("AcDbSweptSurface", 4095),
    };

    private readonly List<CadClassEntity> _classes;

    internal WrittenClasses(IEnumerable<CadClassEntity> classes) => _classes = [.. classes];

    internal IReadOnlyList<CadClassEntity> All => _classes;

    /// <summary>Adds a class where there is none: other programs take a section without classes for a damaged
    /// one.</summary>
    internal void Complete()
    {
        if (_classes.Count == 0)
        {
            Add(Fallback, isEntity: false);
        }
    }

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

        Add(item.DxfName, item is CadEntityBase);
        return FirstNumber + _classes.Count - 1;
    }

    /// <summary>Gets the names of the classes that can be stated.</summary>
    internal static IReadOnlyCollection<string> Names => Known.Keys;

    /// <summary>Returns what files state of a class.</summary>
    internal static CadClassEntity Describe(string recordName, bool isEntity)
    {
        (string name, int flags) = Known.GetValueOrDefault(recordName, (recordName, 0));
        return new CadClassEntity
        {
            DxfRecordName = recordName,
            ClassName = name,
            ApplicationName = Library,
            ProxyFlags = flags,
            IsEntity = isEntity,
        };
    }

    private void Add(string recordName, bool isEntity) => _classes.Add(Describe(recordName, isEntity));
}
