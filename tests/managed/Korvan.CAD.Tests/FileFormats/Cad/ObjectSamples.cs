using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.Background;
using Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;
using Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;
using Korvan.CAD.FileFormats.Cad.CadObjects.Section;
using Korvan.CAD.FileFormats.Cad.CadObjects.SunStudy;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Objects and entities as programs write them, with a value that has to be read and a change of it.</summary>
internal static partial class ObjectSamples
{
    private const string Node = "100 AcDbEvalExpr|90 7|98 33|99 29|";

    private const string Element = Node + "100 AcDbBlockElement|300 Element|98 33|99 29|1071 0|";

    private const string OnePoint = Element + "100 AcDbBlockParameter|280 1|281 0|100 AcDbBlock1PtParameter|1010 1|"
        + "1020 2|1030 0|93 8|170 1|91 9|301 UpdatedX|171 1|92 9|302 UpdatedY|";

    private const string TwoPoints = Element + "100 AcDbBlockParameter|280 1|281 1|100 AcDbBlock2PtParameter|1010 0|"
        + "1020 0|1030 0|1011 5|1021 0|1031 0|170 4|91 3|91 0|91 0|91 0|171 0|172 1|93 9|302 EndYDelta|173 0|174 0|"
        + "177 1|";

    private const string Grip = Element + "100 AcDbBlockGrip|91 4|92 5|1010 5|1020 6|1030 0|280 0|93 -1|";

    private const string Action = Element + "100 AcDbBlockAction|70 2|91 9|91 10|71 1|330 E1|1010 1|1020 1|1030 0|";

    private const string BasePoint = Action + "100 AcDbBlockActionWithBasePt|92 9|93 10|301 UpdatedBaseX|"
        + "302 UpdatedBaseY|1011 0|1021 0|1031 0|280 1|1012 3|1022 4|1032 0|";

    private const string Step = Node + "100 AcDbShHistoryNode|90 33|91 29|40 1|41 0|42 0|43 7|44 0|45 1|46 0|47 0|48 0|"
        + "49 0|50 57.29577951308232|51 0|52 0|53 0|54 0|55 57.29577951308232|62 256|92 3|347 96|"
        + "100 AcDbShPrimitive|";

    private const string Context = "100 AcDbObjectContextData|70 3|290 1|100 AcDbAnnotScaleObjectContextData|340 5A|";

    private const string Matrix = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";

    private const string Modeler = "100 AcDbModelerGeometry|70 1|1 nqrq|1 l|100 AcDbSurface|71 6|72 8|";

    /// <summary>Gets all samples.</summary>
    internal static (string Type, string Fields, Func<CadBaseObject, object> Get, Action<CadBaseObject> Change,
        object Expected)[] All => [.. Objects, .. Entities, .. Annotations];

    private static (string Type, string Fields, Func<CadBaseObject, object> Get, Action<CadBaseObject> Change,
        object Expected)[] Objects =>
    [
        Sample<CadBlockAligmentGrip>("BLOCKALIGNMENTGRIP", Grip + "100 AcDbBlockAlignmentGrip|140 0|141 1|142 0",
            o => o.DirectionY, o => o.DirectionY = -1, 1.0),
        Sample<CadBlockFlipGrip>("BLOCKFLIPGRIP", Grip + "100 AcDbBlockFlipGrip|140 1|141 0|142 0|93 11",
            o => o.CombinedState, o => o.CombinedState = 12, 11),
        Sample<CadBlockRotationGrip>("BLOCKROTATIONGRIP", Grip + "100 AcDbBlockRotationGrip",
            o => o.Location.Y, o => o.Location.Y = 9, 6.0),
        Sample<CadBlockVisibilityGrip>("BLOCKVISIBILITYGRIP", Grip + "100 AcDbBlockVisibilityGrip",
            o => o.InsertCyclingWeight, o => o.InsertCyclingWeight = 2, -1),
        Sample<CadBlockXYGrip>("BLOCKXYGRIP", Grip + "100 AcDbBlockXYGrip",
            o => o.SecondParameterId, o => o.SecondParameterId = 6, 5),
        Sample<CadBlockGripLocationComponent>("BLOCKGRIPLOCATIONCOMPONENT",
            Node + "1 |70 40|40 2.5|100 AcDbBlockGripExpr|91 9|300 UpdatedX",
            o => (o.Value.Number, o.Expression), o => o.Value.Number = 3, (2.5, "UpdatedX")),
        Sample<CadBlockAligmentParameter>("BLOCKALIGNMENTPARAMETER",
            TwoPoints + "100 AcDbBlockAlignmentParameter|280 1",
            o => o.AlignPerpendicular, o => o.AlignPerpendicular = false, true),
        Sample<CadBlockFlipParameter>("BLOCKFLIPPARAMETER", TwoPoints
            + "100 AcDbBlockFlipParameter|305 Flip|306 |307 Not flipped|308 Flipped|1012 1|1022 2|1032 3|96 12|"
            + "309 State",
            o => (o.FlippedStateLabel, o.LabelPoint.Z), o => o.FlipState = 13, ("Flipped", 3.0)),
        Sample<CadBlockRotationParameter>("BLOCKROTATIONPARAMETER", TwoPoints + "100 AcDbBlockRotationParameter|"
            + "305 Angle|"
            + "306 |1011 5|1021 0|1031 0|140 0.5|307 |96 8|141 0|142 0|143 0.25|175 0",
            o => (o.Angle, o.Increment), o => o.Increment = 0.5, (0.5, 0.25)),
        Sample<CadBlockBasePointParameter>("BLOCKBASEPOINTPARAMETER",
            OnePoint + "100 AcDbBlockBasepointParameter|1011 1|1021 2|1031 3|1012 4|1022 5|1032 6",
            o => (o.Point.Z, o.BasePoint.X), o => o.Point.Z = 9, (3.0, 4.0)),
        Sample<CadBlockPointParameter>("BLOCKPOINTPARAMETER",
            OnePoint + "100 AcDbBlockPointParameter|303 Position|304 |1011 1|1021 2|1031 3",
            o => o.PositionLabel, o => o.PositionLabel = "P", "Position"),
        Sample<CadBlockFlipAction>("BLOCKFLIPACTION", Action + "100 AcDbBlockFlipAction|92 1|93 2|94 3|95 4|301 A|"
            + "302 B|"
            + "303 C|304 D", o => (o.UpdatedEndPointId, o.UpdatedEndPointName), o => o.FlipStateName = "F", (4, "D")),
        Sample<CadBlockMoveAction>("BLOCKMOVEACTION", Action + "100 AcDbBlockMoveAction|92 1|301 X|93 2|302 Y|140 1.5|"
            + "141 0|280 2", o => (o.DistanceMultiplier, o.XYType), o => o.DistanceMultiplier = 2, (1.5, (short)2)),
        Sample<CadBlockRotateAction>("BLOCKROTATEACTION",
            BasePoint + "100 AcDbBlockRotationAction|94 11|303 AngleDelta",
            o => (o.AngleDeltaId, o.ActionBasePoint.Y), o => o.AngleDeltaId = 12, (11, 4.0)),
        Sample<CadBlockScaleAction>("BLOCKSCALEACTION",
            BasePoint + "100 AcDbBlockScaleAction|94 1|95 2|96 3|303 S|304 SX|305 SY",
            o => o.YScaleName, o => o.YScaleName = "Y", "SY"),
        Sample<CadAcshWedgeClass>("ACSH_WEDGE_CLASS", Step + "100 AcDbShWedge|90 33|91 29|40 1|41 2|42 3",
            o => (o.Height, o.GetTransform()[3]), o => o.Height = 4, (3.0, 7.0)),
        Sample<CadAcshPyramidClass>("ACSH_PYRAMID_CLASS", Step + "100 AcDbShPyramid|90 33|91 29|40 5|92 6|41 2|42 0",
            o => o.SideCount, o => o.SideCount = 7, 6),
        Sample<CadAcshCylinderClass>("ACSH_CYLINDER_CLASS", Step + "100 AcDbShCylinder|90 33|91 29|40 5|41 2|42 2|43 2",
            o => o.Height, o => o.Height = 6, 5.0),
        Sample<CadAcDbAssocVariable>("ACDBASSOCVARIABLE", "100 AcDbAssocAction|90 2|90 0|330 38E|360 0|90 1|90 0|90 0|"
            + "90 0|90 0|90 0|90 0|100 AcDbAssocVariable|90 2|1 d1|1 2*d2|1 AcDbCalc:1.0|1 width|70 40|40 6.5|290 0|"
            + "1 |290 0",
            o => (o.Expression, o.Value.Number), o => o.Expression = "3", ("2*d2", 6.5)),
        Sample<CadAcDbAssoc2dConstraintGroup>("ACDBASSOC2DCONSTRAINTGROUP", "100 AcDbAssocAction|90 1|90 0|330 38E|"
            + "360 0|"
            + "90 1|90 0|90 0|100 AcDbAssoc2dConstraintGroup|90 2|70 0|10 0|20 0|30 0|10 1|20 0|30 0|10 0|20 1|30 0|"
            + "360 0|"
            + "90 2|360 A1|360 A2|90 1|1 AcConstrainedCircle|330 A0|90 1|70 0",
            o => (o.GeometryHandles.Count, o.NodeCount), o => o.PlaneXAxis.Y = 1, (2, 1)),
        Sample<CadAcDbAlDimObjectContextData>("ACDB_ALDIMOBJECTCONTEXTDATA_CLASS", Context
            + "100 AcDbDimensionObjectContextData|2 *D5|293 0|10 1|20 2|294 1|140 0|298 0|291 0|70 3|292 0|71 0|"
            + "280 0|295 0|"
            + "296 0|297 0|100 AcDbAlignedDimensionObjectContextData|11 7|21 8|31 0",
            o => (o.BlockName, o.ScaleHandle, o.DimensionLinePoint.Y), o => o.BlockName = "*D6", ("*D5", "5A", 8.0)),
        Sample<CadAcDbMTextObjectContextData>("ACDB_MTEXTOBJECTCONTEXTDATA_CLASS", Context
            + "100 AcDbMTextObjectContextData|70 1|10 1|20 0|30 0|11 4|21 5|31 0|40 60|41 0|42 55|43 5|71 2|72 2|"
            + "44 25|45 5|"
            + "73 0|74 0|46 9|46 8", o => o.ColumnHeights[1], o => o.ColumnHeights[1] = 7, 8.0),
        Sample<CadSectionManager>("SECTIONMANAGER", "100 AcDbSectionManager|70 1|90 2|330 A1|330 A2",
            o => o.SectionHandles[1], o => o.SectionHandles.Add("A3"), "A2"),
        Sample<CadSectionSettings>("SECTION_SETTINGS", "100 AcDbSectionSettings|90 2|91 1|1 SectionTypeSettings|90 2|"
            + "91 17|"
            + "92 1|330 A1|331 0|1 out.dxf|93 1|2 SectionGeometrySettings|90 2|91 4|92 1|63 256|8 0|6 ByLayer|40 1|"
            + "1 ByColor|"
            + "370 -1|70 0|71 0|72 1|2 ANSI31|41 0|42 1|43 2|3 SectionGeometrySettingsEnd|3 SectionTypeSettingsEnd",
            o => (o.TypeSettings[0].DestinationFileName, o.TypeSettings[0].GeometrySettings[0].HatchPatternName),
            o => o.TypeSettings[0].GeometrySettings[0].HatchScale = 5, ("out.dxf", "ANSI31")),
        Sample<CadSunStudy>("SUNSTUDY", "100 AcDbSunStudy|90 1|1 Study|2 Text|70 0|3 Set|290 1|4 Subset|291 1|91 2|"
            + "90 2458383|"
            + "90 36000|90 2458384|90 36000|292 1|93 100|94 200|95 50|73 3|290 1|290 0|290 1|340 A1|341 A2|342 A3|"
            + "74 0|75 4|"
            + "76 2|77 2|40 1.5|293 0|294 1|343 A4",
            o => (o.SheetSubsetName, o.Dates[1].JulianDay, o.Interval, o.Hours[2]), o => o.Spacing = 2,
            ("Subset", 2458384, 50, 1)),
        Sample<CadSolidBackground>("SOLID_BACKGROUND", "100 AcDbSolidBackground|90 1|90 -1023410171",
            o => o.Color, o => o.Color = 1, -1023410171),
        Sample<CadGradientBackground>("GRADIENT_BACKGROUND",
            "100 AcDbGradientBackground|90 1|90 11|91 12|92 13|140 0.4|141 0.3|142 0.2",
            o => (o.ColorTop, o.ColorBottom, o.Horizon), o => o.ColorMiddle = 5, (11, 13, 0.4)),
        Sample<CadSkyLightBackGround>("SKYLIGHT_BACKGROUND", "100 AcDbSkyBackground|90 1|340 A1",
            o => o.SunHandle, o => o.SunHandle = "A2", "A1"),
        Sample<CadDbColor>("DBCOLOR", "100 AcDbColor|62 5|420 255|430 Book$Blue",
            o => (o.ColorValue, o.ColorName), o => o.ColorId = 7, (255, "Book$Blue")),
        Sample<CadGeoData>("GEODATA", "100 AcDbGeoData|90 3|330 1F|70 3|10 1|20 2|30 0|11 13.4|21 52.5|31 30|40 1|"
            + "91 6|41 1|"
            + "92 6|210 0|220 0|230 1|12 0|22 1|95 1|141 1|294 0|142 0|143 0|303 <Coordinate|301 System>|302 |305 |"
            + "306 |307 |"
            + "93 3|13 0|23 0|14 1|24 1|13 1|23 0|14 2|24 1|13 0|23 1|14 1|24 2|96 1|97 0|98 1|99 2",
            o => (o.CoordinateSystemDefinition, o.ReferencePoint.Y, o.MeshTargetPoints[2].Y, o.MeshFaces[2]),
            o => o.MeshSourcePoints[1].X = 3, ("<CoordinateSystem>", 52.5, 2.0, 2)),
        Sample<CadSpatialFilter>("SPATIAL_FILTER", "100 AcDbFilter|100 AcDbSpatialFilter|70 2|10 0|20 0|10 4|20 5|"
            + "210 0|220 0|"
            + "230 1|11 0|21 0|31 0|71 1|72 1|40 9|73 0|" + Repeat(40, "1 0 0 2 0 1 0 0 0 0 1 0") + "|"
            + Repeat(40, "1 0 0 3 0 1 0 0 0 0 1 0"),
            o => (o.FrontClippingDistance, o.InverseTransform[3], o.Transform[3]), o => o.Transform[3] = 4,
            (9.0, 2.0, 3.0)),
        Sample<CadSpatialIndex>("SPATIAL_INDEX", "100 AcDbIndex|40 2458383.5|100 AcDbSpatialIndex",
            o => o.LastUpdated, o => o.LastUpdated = 1, 2458383.5),
        Sample<CadLayerFilter>("LAYER_FILTER", "100 AcDbFilter|100 AcDbLayerFilter|8 Walls|8 Doors",
            o => o.LayerNames[1], o => o.LayerNames.Add("Roof"), "Doors"),
        Sample<CadLightList>("LIGHTLIST", "100 AcDbLightList|90 1|90 2|5 A1|1 Sun|5 A2|1 Lamp",
            o => o.GetLightHandles()[1] + o.GetLightNames()[1], o => o.Version = 2, "A2Lamp"),
        Sample<CadVbaProject>("VBA_PROJECT", "100 AcDbVbaProject|90 3|310 0A0B0C",
            o => o.Data.Length, o => o.Data = [1], 3),
        Sample<CadAcDbBlockRepresentationData>("ACDB_BLOCKREPRESENTATION_DATA",
            "100 AcDbBlockRepresentationData|70 1|340 A1", o => o.BlockHandle, o => o.BlockHandle = "A2", "A1"),
        Sample<CadPdfDefinition>("PDFDEFINITION", "100 AcDbUnderlayDefinition|1 plan.pdf|2 1",
            o => (o.FileName, o.ItemName), o => o.ItemName = "2", ("plan.pdf", "1")),
        Sample<CadTableStyle>("TABLESTYLE", "100 AcDbTableStyle|280 0|3 Standard|70 1|71 0|40 1.5|41 1.5|280 0|281 1|"
            + "7 Title|"
            + "140 6|170 5|62 3|63 7|283 1|90 4|91 0|1 %f|274 25|284 1|64 1|275 -2|285 0|65 0|276 -2|286 1|66 0|"
            + "277 -2|287 1|"
            + "67 0|278 -2|288 1|68 0|279 -2|289 1|69 5",
            o => (o.IsHeaderSuppressed, o.Cells[0].TextStyleName, o.Cells[0].Content.Format,
                o.Cells[0].Borders[1].IsVisible, o.Cells[0].Borders[5].ColorId),
            o => o.Cells[0].Borders[0].LineWeight = 50, (true, "Title", "%f", false, (short)5)),
        Sample<CadPlaneSurface>("PLANESURFACE", Modeler + "100 AcDbPlaneSurface",
            o => (o.AcisData[0], o.VIsolines), o => o.UIsolines = 3, ("nqrq", (short)8)),
        Sample<CadRevolvedSurface>("REVOLVEDSURFACE", Modeler + "100 AcDbRevolvedSurface|90 36|90 16|310 0102|10 1|"
            + "20 2|30 3|"
            + "11 0|21 0|31 1|40 3.14|41 0|" + Repeat(42, Matrix) + "|43 0|44 0|45 0|46 0.5|290 0|291 1",
            o => (o.RevolveAngle, o.TwistAngle, o.IsCloseToAxis), o => o.StartAngle = 1, (3.14, 0.5, true)),
        Sample<CadLoftedSurface>("LOFTEDSURFACE", Modeler + "100 AcDbLoftedSurface|" + Repeat(40, Matrix)
            + "|90 36|90 8|310 01|90 77|90 16|310 0203|70 1|41 0|42 0.25|43 0|44 0|290 0|291 1|292 1|293 0|294 1|"
            + "295 0|296 0|"
            + "297 0", o => (o.EndDraftAngle, o.CreateClosedSurface), o => o.EndDraftMagnitude = 1, (0.25, true)),
        Sample<CadSection>("SECTIONOBJECT", "100 AcDbSection|90 1|91 1|1 A-A|10 0|20 0|30 1|40 9|41 1|70 70|63 5|"
            + "92 2|11 0|21 0|"
            + "31 0|11 5|21 0|31 0|93 1|12 0|22 3|32 0|360 A1",
            o => (o.Name, o.Vertices[1].X, o.BackLineVertices[0].Y), o => o.TopHeight = 10, ("A-A", 5.0, 3.0)),
        Sample<CadCoordinationModel>("COORDINATION_MODEL",
            "100 AcDbNavisworksModel|70 1|340 A1|" + Repeat(40, "1 0 0 5 0 1 0 0 0 0 1 0 0 0 0 1") + "|40 0.001",
            o => (o.Transform[3], o.UnitFactor), o => o.UnitFactor = 1, (5.0, 0.001)),
        Sample<CadDgnUnderlay>("DGNUNDERLAY", "100 AcDbUnderlayReference|340 A1|10 1|20 2|30 0|41 2|42 2|43 2|50 30|"
            + "280 19|"
            + "281 80|282 10|11 0|21 0|11 4|21 3|170 3|12 1|22 1|12 2|22 1|12 1|22 2",
            o => (o.RotationAngle, o.Fade, o.ClipPoints[1].Y, o.InnerClipPoints.Count), o => o.Contrast = 50,
            (30.0, (short)10, 3.0, 3)),
        Sample<CadOleFrame>("OLEFRAME", "100 AcDbOleFrame|70 1|90 2|310 0A0B|1 OLE",
            o => o.Data[1], o => o.Data = [1, 2, 3], (byte)0x0B),
        Sample<CadAcidBlockReferenceEntity>("ACIDBLOCKREFERENCE",
            "100 AcDbBlockReference|2 Chair|10 1|20 2|30 0|100 AcIdBlockReference|90 4|1 oak",
            o => (o.Name, o.GetDesignData()[1].Value), o => o.InsertionPoint.X = 5, ("Chair", "oak")),
    ];

    private static string Repeat(int code, string values) =>
        string.Join('|', values.Split(' ').Select(value => $"{code} {value}"));

    private static (string, string, Func<CadBaseObject, object>, Action<CadBaseObject>, object) Sample<T>(
        string type, string fields, Func<T, object> get, Action<T> change, object expected)
        where T : CadBaseObject => (type, fields, item => get((T)item), item => change((T)item), expected);
}
