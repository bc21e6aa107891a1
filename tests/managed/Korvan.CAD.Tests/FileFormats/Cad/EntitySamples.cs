using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.DataTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Samples of entities, and of objects that they refer to.</summary>
internal static partial class ObjectSamples
{
    private const string Sweep = "42 0|43 0|44 0|45 0.5|48 1|49 0|";

    private const string SweepOptions = "290 1|70 2|292 1|293 0|294 0|295 1|296 0|11 1|21 2|31 3";

    private static (string Type, string Fields, Func<CadBaseObject, object> Get, Action<CadBaseObject> Change,
        object Expected)[] Entities =>
    [
        Sample<CadSweptSurface>("SWEPTSURFACE", Modeler + "100 AcDbSweptSurface|90 36|90 16|310 0102|90 77|90 8|310 03|"
            + Repeat(40, Matrix) + "|" + Repeat(41, Matrix) + "|" + Sweep + Repeat(46, Matrix) + "|"
            + Repeat(47, Matrix) + "|" + SweepOptions,
            o => (o.SweepEntityData.Length, o.PathEntityClass, o.TwistAngle, o.TwistReference.Z),
            o => o.PathEntityData = [1, 2], (2, 77, 0.5, 3.0)),
        Sample<CadExtrudedSurface>("EXTRUDEDSURFACE", Modeler + "100 AcDbExtrudedSurface|90 18|90 8|310 0A|10 0|20 0|"
            + "30 5|" + Repeat(40, Matrix) + "|" + Sweep + Repeat(46, Matrix) + "|" + Repeat(47, Matrix) + "|"
            + SweepOptions, o => (o.SweepVector.Z, o.SweepAlignment, o.AlignStart), o => o.SweepVector.Z = 9,
            (5.0, (short)2, true)),
        Sample<CadBody>("BODY", "100 AcDbModelerGeometry|70 1|1 " + Long + "|3 y|1 three",
            o => (o.AcisData.Count, o.AcisData[0].Length), o => o.AcisData.Add("four"), (2, 251)),
        Sample<CadHelix>("HELIX", "100 AcDbSpline|70 0|71 1|72 4|73 2|74 0|42 0.01|43 0.02|40 0|40 0|40 1|40 1|10 0|"
            + "20 0|30 0|10 5|20 0|30 1|100 AcDbHelix|90 29|91 63|10 1|20 2|30 3|11 2|21 2|31 3|12 0|22 0|32 1|40 1|"
            + "41 2.5|42 4|290 1|280 2",
            o => (o.ControlPoints[1].X, o.Radius, o.NumberOfTurns, o.AxisBasePoint.Y), o => o.TurnHeight = 5,
            (5.0, 1.0, 2.5, 2.0)),
        Sample<CadOle2Frame>("OLE2FRAME", "100 AcDbOle2Frame|70 2|3 Paint|10 1|20 9|30 0|11 7|21 3|31 0|71 2|72 0|"
            + "73 3|90 3|310 0A0B0C|1 OLE", o => (o.Description, o.UpperLeftPoint.Y, o.LockAspect, o.Data[2]),
            o => o.Data = [], ("Paint", 9.0, (short)3, (byte)12)),
        Sample<CadRasterImage>("IMAGE", "100 AcDbRasterImage|90 0|10 1|20 2|30 0|11 0.5|21 0|31 0|12 0|22 0.5|32 0|"
            + "13 640|23 480|340 A1|70 7|280 1|281 50|282 60|283 10|360 A2|71 2|91 3|14 0|24 0|14 9|24 0|14 9|24 9|"
            + "290 1", o => (o.ImageSize.Y, o.Contrast, o.ClipBoundaryVertices[2].Y, o.ClipMode),
            o => o.ClipBoundaryVertices.RemoveAt(0), (480.0, (short)60, 9.0, (short)1)),
        Sample<CadLeader>("LEADER", "100 AcDbLeader|3 Standard|71 1|72 0|73 1|74 1|75 1|40 2.5|41 9|76 3|10 0|20 0|"
            + "30 0|10 5|20 5|30 0|10 9|20 5|30 0|77 3|340 A1|211 0|221 1|231 0|212 1|222 2|232 0|213 3|223 4|233 0",
            o => (o.Coordinates[2].X, o.TextWidth, o.HorizontalDirection.Y, o.LastVertexOffsetFromAnnotation.Y),
            o => o.Coordinates[0].Z = 4, (9.0, 9.0, 1.0, 4.0)),
        Sample<CadShape>("SHAPE", "100 AcDbShape|10 1|20 2|30 3|40 5|2 BAT|50 45|41 2|51 15|39 2",
            o => (o.ShapeName, o.RotationAngle, o.ObliqueAngle, o.Thickness), o => o.ScaleX = 3,
            ("BAT", 45.0, 15.0, 2.0)),
        Sample<CadTrace>("TRACE", "100 AcDbTrace|10 0|20 0|30 1|11 5|21 0|31 1|12 0|22 2|32 1|13 5|23 2|33 1|39 4",
            o => (o.ThirdPoint.Y, o.FourthPoint.X, o.Thickness), o => o.FirstPoint.X = -1, (2.0, 5.0, 4.0)),
        Sample<CadMultiLine>("MLINE", "100 AcDbMline|2 Standard|340 A1|40 2|70 1|71 1|73 2|10 0|20 0|30 0|210 0|"
            + "220 0|230 1|72 2|11 0|21 0|31 0|12 1|22 0|32 0|13 0|23 1|33 0|74 2|41 0|41 1|75 0|74 1|41 -2|75 1|42 3|"
            + "11 9|21 0|31 0|12 1|22 0|32 0|13 0|23 1|33 0|74 0|75 0|74 0|75 0",
            o => (o.Vertices.Count, o.Vertices[1].Location.X, o.Vertices[0].Miter.Y), o => o.Vertices.RemoveAt(1),
            (2, 9.0, 1.0)),
        Sample<CadTolerance>("TOLERANCE", "100 AcDbFcf|3 Standard|10 1|20 2|30 0|1 {\\Fgdt;j}%%v0.1|11 0|21 1|31 0",
            o => (o.VisualRepresentation, o.DirectionVector.Y), o => o.InsertionPoint.Z = 1,
            (@"{\Fgdt;j}%%v0.1", 1.0)),
        Sample<CadMText>("MTEXT", "100 AcDbMText|10 1|20 2|30 0|40 2.5|41 80|46 20|71 5|72 3|7 Notes|11 0|21 1|31 0|"
            + "73 2|44 1.5|90 1|45 1.25|63 3|421 255|3 " + Long + "|1 end",
            o => (o.Text.Length, o.ReferenceRectangleHeight, o.TextDirection.Y, o.BackgroundColor),
            o => o.Text = "short", (253, 20.0, 1.0, 255)),
        Sample<CadHatch>("HATCH", "100 AcDbHatch|10 0|20 0|30 0|210 0|220 0|230 1|2 ANSI31|70 0|71 0|91 2|"
            + "92 7|72 1|73 1|93 3|10 0|20 0|42 0|10 9|20 0|42 1|10 9|20 9|42 0|97 1|330 A1|"
            + "92 1|93 4|72 1|10 0|20 0|11 1|21 0|72 2|10 1|20 1|40 1|50 270|51 360|73 1|72 3|10 0|20 1|11 2|21 0|"
            + "40 0.5|50 0|51 90|73 0|72 4|94 2|73 0|74 0|95 6|96 3|40 0|40 0|40 0|40 1|40 1|40 1|10 0|20 2|10 0|20 1|"
            + "10 0|20 0|97 0|97 0|75 1|76 1|52 45|41 2|77 0|78 1|53 45|43 0|44 0|45 -0.5|46 0.5|79 2|49 1|49 -0.5|"
            + "47 0.1|98 1|10 1|20 1",
            o => (o.BoundaryPaths.Count, o.PatternDefinitions[0].DashLengths[1], o.SeedPoints[0].X, o.HatchStyle),
            o => o.PatternAngle = 30, (2, -0.5, 1.0, (short)1)),
        Sample<CadEllipse>("ELLIPSE", "100 AcDbEllipse|10 1|20 2|30 3|11 5|21 0|31 0|40 0.25|41 0.5|42 2",
            o => (o.MajorEndPoint.X, o.AxisRatio, o.EndAngle), o => o.StartAngle = 0, (5.0, 0.25, 2.0)),
        Sample<CadAttDef>("ATTDEF", "100 AcDbText|10 1|20 2|30 0|40 2.5|1 17|50 30|41 0.8|7 Notes|72 1|11 4|21 5|31 0|"
            + "100 AcDbAttributeDefinition|3 Number?|2 NO|70 8|73 4|74 2|280 1",
            o => (o.DefaultValue, o.PromptString, o.DefinitionTagString), o => o.PromptString = "No.?",
            ("17", "Number?", "NO")),
        Sample<CadDwfUnderlay>("DWFUNDERLAY", "100 AcDbUnderlayReference|340 A1|10 1|20 2|30 0|41 1|42 1|43 1|50 0|"
            + "280 2|281 100|282 0", o => (o.UnderlayDefinition, o.ClipPoints.Count), o => o.Fade = 40, ("A1", 0)),
        Sample<CadAcshSphereClass>("ACSH_SPHERE_CLASS", Step + "100 AcDbShSphere|90 33|91 29|40 5",
            o => o.Radius, o => o.Radius = 6, 5.0),
        Sample<CadAcshTorusClass>("ACSH_TORUS_CLASS", Step + "100 AcDbShTorus|90 33|91 29|40 5|41 2",
            o => o.MinorRadius, o => o.MajorRadius = 6, 2.0),
        Sample<CadAcshConeClass>("ACSH_CONE_CLASS", Step + "100 AcDbShCone|90 33|91 29|40 5|41 2|42 2|43 0",
            o => (o.Height, o.TopRadius), o => o.TopRadius = 1, (5.0, 0.0)),
        Sample<CadDataTable>("DATATABLE", "100 AcDbDataTable|70 2|90 3|91 2|1 Doors|92 1|2 No|93 7|93 8|92 2|2 Width|"
            + "40 0.9|40 1.2|92 3|2 Name|3 a|3 b",
            o => (o.TableName, o.Columns[0].Integers[1], o.Columns[1].Numbers[1], o.Columns[2].Strings[0]),
            o => o.Columns[1].Numbers[0] = 2, ("Doors", 8, 1.2, "a")),
        Sample<CadRasterImageDef>("IMAGEDEF", "100 AcDbRasterImageDef|90 0|1 scan.png|10 640|20 480|11 0.1|21 0.2|"
            + "280 1|281 2", o => (o.FileName, o.ImageSize.Y, o.PixelSize.Y), o => o.IsLoaded = 0,
            ("scan.png", 480.0, 0.2)),
        Sample<CadRasterImageDefReactor>("IMAGEDEF_REACTOR", "100 AcDbRasterImageDefReactor|90 2|330 A1",
            o => o.AssociatedImageHandle, o => o.ClassVersion = 3, "A1"),
        Sample<CadAcDbMLeaderObjectContextData>("ACDB_MLEADEROBJECTCONTEXTDATA_CLASS", Context
            + "100 AcDbMLeaderObjectContextData|300 CONTEXT_DATA{|40 2|304 note|301 }",
            o => o.GetContextTags()[2].Value, o => o.ScaleHandle = "5B", "note"),
        Sample<CadObjectPtr>("OBJECT_PTR", "100 CAseDLPNTableRecord|90 4|1 link", o => o.GetData()[1].Value,
            o => o.GetData()[1].Value = "other", "link"),
        Sample<CadVloVlObject>("VLO-VL", "100 AcDbVlo|290 1|91 5|310 0102", o => o.GetData().Length,
            o => o.GetData()[1].Value = "6", 3),
        Sample<CadAcDbDynamicBlockPurgePreventerVersion>("ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION",
            "100 AcDbDynamicBlockPurgePreventer|70 1|340 A1", o => o.BlockHandle, o => o.Version = 2, "A1"),
        Sample<CadXRecord>("XRECORD", "100 AcDbXrecord|280 1|1 a|10 1|20 2|30 3|70 5|102 {X|330 A1|102 }|290 1|310 0A",
            o => o.Data[1].Value, o => o.Data.RemoveAt(0), "a"),
    ];

    private static string Long => new('x', 250);
}
