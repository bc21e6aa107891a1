using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.DimAssoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.PersSubentManager;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Samples of dimensions, styles, and of the objects that keep drawings associative.</summary>
internal static partial class ObjectSamples
{
    private const string Dimension = "100 AcDbDimension|2 *D1|10 8|20 2|30 0|11 5|21 6|31 0|70 {0}|71 8|72 2|41 1.5|"
        + "1 <> mm|42 7.5|3 Notes|";

    private const string Ref = "1 AcDbOsnapPointRef|72 1|331 A2|73 2|91 1|40 1|10 4|20 5|30 0|75 0";

    private const string Dependency = "100 AcDbAssocDependency|90 2|90 1|290 1|290 0|290 1|290 1|90 7|330 A1|290 0|"
        + "330 0|330 0|360 0|90 1";

    private static (string Type, string Fields, Func<CadBaseObject, object> Get, Action<CadBaseObject> Change,
        object Expected)[] Annotations =>
    [
        Sample<CadRotatedDimension>("DIMENSION", Dimension.Replace("{0}", "32", StringComparison.Ordinal)
            + "100 AcDbAlignedDimension|13 1|23 2|33 0|14 9|24 2|34 0|50 90|52 60|100 AcDbRotatedDimension",
            o => (o.Text, o.ActualMeasurement, o.StyleName, o.SecondExtensionPoint.X, o.RotationAngle),
            o => o.Text = "9", ("<> mm", 7.5, "Notes", 9.0, 90.0)),
        Sample<CadArcLengthDimension>("ARC_DIMENSION", Dimension.Replace("{0}", "37", StringComparison.Ordinal)
            + "100 AcDbArcDimension|13 1|23 2|33 0|14 3|24 4|34 0|15 5|25 6|35 0|70 1|40 0.5|41 1.5|71 1|16 7|26 8|"
            + "36 0|17 9|27 10|37 0", o => (o.ArcCenter.Y, o.EndAngle, o.LeaderEnd.Y), o => o.LeaderStart.X = 1,
            (6.0, 1.5, 10.0)),
        Sample<CadJoggedDimension>("LARGE_RADIAL_DIMENSION", Dimension.Replace("{0}", "169", StringComparison.Ordinal)
            + "100 AcDbRadialDimensionLarge|13 1|23 2|33 0|14 3|24 4|34 0|15 5|25 6|35 0|40 0.75",
            o => (o.OverrideCenter.X, o.JogPoint.Y, o.ChordPoint.X, o.JogAngle), o => o.JogAngle = 1,
            (1.0, 4.0, 5.0, 0.75)),
        Sample<CadDimAssoc>("DIMASSOC", "100 AcDbDimAssoc|330 394|90 3|70 0|71 0|1 AcDbOsnapPointRef|72 13|331 361|"
            + "331 362|73 2|91 2|40 0|10 1|20 2|30 3|332 A9|74 2|92 4|75 0|" + Ref,
            o => (o.PointReferences.Count, o.PointReferences[0].IntersectionHandles[0], o.PointReferences[1].Point.Y),
            o => o.PointReferences[0].Parameter = 0.5, (2, "A9", 5.0)),
        Sample<CadAcDbAssocAction>("ACDBASSOCACTION", "100 AcDbAssocAction|90 2|90 0|330 38E|360 392|90 1|90 2|90 2|"
            + "360 396|330 397|90 0|90 1|360 393|90 0|90 0",
            o => (o.OwningNetwork, o.Dependencies.Count, o.Dependencies[0].IsOwned, o.Dependencies[1].ObjectHandle),
            o => o.ActionIndex = 4, ("38E", 2, true, "397")),
        Sample<CadAcDbAssocNetwork>("ACDBASSOCNETWORK", "100 AcDbAssocAction|90 2|90 0|330 0|360 0|90 0|90 0|90 0|90 0|"
            + "90 0|90 0|90 0|100 AcDbAssocNetwork|90 0|90 3|90 2|330 38E|360 38F|90 1|330 38E",
            o => (o.Actions.Count, o.Actions[1].IsOwned, o.ActionsToEvaluate[0]), o => o.MaxActionIndex = 4,
            (2, true, "38E")),
        Sample<CadAcDbAssocDependency>("ACDBASSOCDEPENDENCY", Dependency, o => (o.Order, o.DependentOnObject),
            o => o.IsWriteDependency = true, (7, "A1")),
        Sample<CadAcDbAssocGeomDependency>("ACDBASSOCGEOMDEPENDENCY", Dependency + "|100 AcDbAssocGeomDependency|90 0|"
            + "290 1|1 AcDbAssocSimplePersSubentId|90 0|90 -1003|90 3|290 0", o => o.SubentityClass,
            o => o.IsEnabled = false, "AcDbAssocSimplePersSubentId"),
        Sample<CadAcDbPersSubentManager>("ACDBPERSSUBENTMANAGER", "100 AcDbPersSubentManager|90 2|90 0|90 2|90 3|90 0|"
            + "90 1|90 1", o => o.Version, o => o.Version = 3, 2),
        Sample<CadAcadEvaluationGraph>("ACAD_EVALUATION_GRAPH", "100 AcDbEvalGraph|96 2|97 2|91 0|93 32|95 1|360 62F|"
            + "92 -1|92 -1|92 -1|92 -1|91 1|93 32|95 2|360 62A|92 0|92 0|92 -1|92 -1|92 0|93 0|94 1|91 1|91 0|92 -1|"
            + "92 -1|92 -1|92 -1|92 -1", o => o.LastNodeId, o => o.LastNodeId = 3, 2),
        Sample<CadAcshBoxClass>("ACSH_BOX_CLASS", Step + "100 AcDbShBox|90 33|91 29|40 5|41 2|42 0.5",
            o => (o.Length, o.Width, o.Height), o => o.Width = 3, (5.0, 2.0, 0.5)),
        Sample<CadAcshHistoryClass>("ACSH_HISTORY_CLASS", "100 AcDbShHistory|90 33|91 29|360 62E|92 4|280 1|281 0",
            o => (o.GraphHandle, o.LastNodeId, o.ShowHistory), o => o.RecordHistory = true, ("62E", 4, true)),
        Sample<CadGroup>("GROUP", "100 AcDbGroup|300 Doors|70 0|71 1|340 A1|340 A2|340 A3",
            o => (o.Description, o.EntityHandles.Count), o => o.EntityHandles.RemoveAt(1), ("Doors", 3)),
        Sample<CadLight>("LIGHT", "100 AcDbLight|90 1|1 Spot|70 3|290 1|63 5|291 0|40 5.5|10 1|20 2|30 3|11 4|21 5|"
            + "31 6|72 0|292 0|41 1|42 10|50 45|51 50|293 1|73 0|91 256|280 1",
            o => (o.Name, o.Intensity, o.Target.Z, o.AttenuationStart), o => o.Position.Z = 0, ("Spot", 5.5, 6.0, 1.0)),
        Sample<CadMLeaderStyleObject>("MLEADERSTYLE", "100 AcDbMLeaderStyle|179 2|170 2|171 1|172 0|90 2|40 0|41 0.5|"
            + "173 1|91 -1056964608|340 14|92 -2|290 1|42 2|291 1|43 8|3 Standard|341 0|44 4|300 text|342 11|174 1|"
            + "178 1|175 1|176 0|93 -1056964608|45 4|292 0|297 0|46 4|343 0|94 -1056964608|47 1|49 1|140 1|293 1|"
            + "141 0|294 1|177 0|142 1|295 0|296 0|143 3.75|271 0|272 9|273 9|298 0",
            o => (o.ContentType, o.SecondSegmentAngle, o.LandingGap), o => o.LandingGap = 3, ((short)2, 0.5, 2.0)),
        Sample<CadMLineStyleObject>("MLINESTYLE", "100 AcDbMlineStyle|2 Walls|70 0|3 Two lines|62 256|51 90|52 45|71 2|"
            + "49 0.5|62 1|6 DASHED|49 -0.5|62 256|6 BYLAYER",
            o => (o.StyleName, o.Description, o.EndAngle, o.Elements.Count), o => o.Elements.RemoveAt(0),
            ("Walls", "Two lines", 45.0, 2)),
        Sample<CadRasterImageData>("RASTERVARIABLES", "100 AcDbRasterVariables|90 0|70 1|71 1|72 3", o => o.Units,
            o => o.FrameMode = 0, (short)3),
        Sample<CadWipeoutVariables>("WIPEOUTVARIABLES", "100 AcDbWipeoutVariables|70 1", o => o.DisplayFrame,
            o => o.DisplayFrame = 0, (short)1),
        Sample<CadDictionaryVar>("DICTIONARYVAR", "100 DictionaryVariables|280 0|1 1:50", o => o.Value,
            o => o.Value = "1:1", "1:50"),
        Sample<CadLwPolyline>("LWPOLYLINE", "100 AcDbPolyline|39 1|90 3|70 1|38 2|10 1|20 2|40 0|41 0|42 0.5|10 3|"
            + "20 4|40 0.25|41 0.75|42 0|10 5|20 6|40 0|41 0|42 0", o => (o.Coordinates[2].Y, o.Elevation, o.Thickness),
            o => o.Coordinates[1].X = 9, (6.0, 2.0, 1.0)),
        Sample<Cad3DFace>("3DFACE", "100 AcDbFace|10 1|20 2|30 3|11 4|21 5|31 6|12 7|22 8|32 9|13 7|23 8|33 9|70 5",
            o => (o.ThirdPoint.Y, o.FourthPoint.Z, o.InvisibleEdges), o => o.InvisibleEdges = 3, (8.0, 9.0, (short)5)),
        Sample<CadSpline>("SPLINE", "100 AcDbSpline|210 0|220 0|230 1|70 12|71 2|72 6|73 3|74 0|42 1E-09|43 1E-10|40 0|"
            + "40 0|40 0|40 1|40 1|40 1|41 1|41 0.5|41 1|10 0|20 0|30 0|10 1|20 2|30 0|10 3|20 0|30 0",
            o => (o.Degree, o.Weights[1], o.ControlPoints[1].Y, o.KnotValues.Count), o => o.Weights[1] = 2,
            ((short)2, 0.5, 2.0, 6)),
        Sample<CadMesh>("MESH", "100 AcDbSubDMesh|71 2|72 0|91 1|92 4|10 0|20 0|30 0|10 4|20 0|30 0|10 4|20 3|30 0|"
            + "10 0|20 3|30 1|93 5|90 4|90 0|90 1|90 2|90 3|94 1|90 0|90 1|95 1|140 0.5|90 0",
            o => (o.Vertices.Count, o.FaceList[0], o.EdgeList[1], o.Creases[0]), o => o.Vertices[3].Z = 2,
            (4, 4, 1, 0.5)),
    ];
}
