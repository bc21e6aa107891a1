using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <content>The lists. Source: Open Design Specification for .dwg files, 5.4.1, chapter 20, for styles of views and
/// data of scales; the others are what text files have, as far as records of the same objects agree.</content>
internal sealed partial class RawFields
{
    private const string ViewStyle = "100=AcDbModelDocViewStyle|70 BS|3 T|290 B|2018+ 300 T|2018+ 90 BL|";
    private const string Context =
        "100=AcDbObjectContextData|70 BS|290 B|100=AcDbAnnotScaleObjectContextData|340 H|";

    private const string ActionParameter = "100=AcDbAssocActionParam|v90 BS|if1+(90 BL)|1 T|";
    private const string CompoundParameter =
        ActionParameter + "100=AcDbAssocCompoundActionParam|90 BS|90 BS|n90 BL(360 H)|";

    private const string SingleParameter = ActionParameter + "100=AcDbAssocSingleDependencyActionParam|90 BL|330 H|";

    // Arcs of circles and ellipses, and line segments.
    private const string Curve = "if11=(10 3BD|11 3BD|12 3BD|40 BD|50 BD|51 BD)|"
        + "if17=(10 3BD|11 3BD|12 3BD|40 BD|41 BD|50 BD|51 BD)|if23=(10 3BD|11 3BD)";

    private const string SurfaceBody = "100=AcDbAssocActionBody|v90 BL|if1-(100=AcDbAssocParamBasedActionBody|90 BL|"
        + "90 BL|n90 BL(360 H)|90 BL|n90 BL(90 BL|1 T|90 BL|n90 BL(70 V|330 H)|330 H))|100=AcDbAssocSurfaceActionBody|"
        + "90 BL|330 H|290 B|90 BL|290 B|70 BS|100=AcDbAssocPathBasedSurfaceActionBody|90 BL|";

    private const string RenderSettings =
        "100=AcDbRenderSettings|90 BL|1 T|290 B|290 B|290 B|290 B|1 T|1 T|90 BL|";

    private static readonly Dictionary<string, RawFields> Lists = new()
    {
        ["ACDBDETAILVIEWSTYLE"] = new(ViewStyle + "100=AcDbDetailViewStyle|70 BS|71=0|90 BL|71=1|340 H|62 CMC|40 BD|"
            + ">340 H|>62 CMC|>40 BD|300 T|40 BD|280 RC|<|71=2|340 H|90 BL|62 CMC|71=3|340 H|62 CMC|40 BD|90 BL|40 BD|"
            + "90 BL|300 T|71=4|340 H|90 BL|62 CMC|340 H|90 BL|62 CMC|280 RC"),
        ["ACDB_TEXTOBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbTextObjectContextData|70 BS|50 BD|10 2RD|11 2RD"),
        ["ACDB_LEADEROBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbLeaderObjectContextData|n70 BL(10 3BD)|11 3BD|290 B|12 3BD|13 3BD"),
        ["ACDB_BLKREFOBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbBlkrefObjectContextData|50 BD|10 3BD|41 BD|42 BD|43 BD"),
        ["ACDB_FCFOBJECTCONTEXTDATA_CLASS"] = new(Context + "100=AcDbFcfObjectContextData|10 3BD|11 3BD"),
        ["ACDBASSOCALIGNEDDIMACTIONBODY"] = new(
            "100=AcDbAssocActionBody|v90 BL|if1-(100=AcDbAssocParamBasedActionBody|90 BL|90 BL|n90 BL(360 H)|90 BL|"
            + "90 BL|90 BL)|if2+(90 BL)|330 H|100=ACDBASSOCALIGNEDDIMACTIONBODY|90 BL|330 H|330 H"),
        ["ACDBASSOCEDGEACTIONPARAM"] = new(SingleParameter + "100=AcDbAssocEdgeActionParam|90 BL|330 H|v290 B|"
            + $"if1=(v90 BL|{Curve}|if47=(n90 BL(v90 BL|{Curve})))"),
        ["ACDBASSOCEXTRUDEDSURFACEACTIONBODY"] = new(SurfaceBody + "100=AcDbAssocExtrudedSurfaceActionBody|90 BL"),
        ["ACDBASSOCLOFTEDSURFACEACTIONBODY"] = new(SurfaceBody + "100=AcDbAssocLoftedSurfaceActionBody|90 BL"),
        ["ACDBASSOCPLANESURFACEACTIONBODY"] = new(SurfaceBody + "100=AcDbAssocPlaneSurfaceActionBody|90 BL"),
        ["ACDBASSOCREVOLVEDSURFACEACTIONBODY"] = new(SurfaceBody + "100=AcDbAssocRevolvedSurfaceActionBody|90 BL|"
            + "290 B"),
        ["ACDBASSOCSWEPTSURFACEACTIONBODY"] = new(SurfaceBody + "100=AcDbAssocSweptSurfaceActionBody|90 BL"),
        ["ACDBASSOCOSNAPPOINTREFACTIONPARAM"] = new(
            CompoundParameter + "90 BS|90 BL|330 H|100=ACDBASSOCOSNAPPOINTREFACTIONPARAM|90 BS|90 RC|40 BD"),
        ["ACDBASSOCPATHACTIONPARAM"] = new(CompoundParameter + "100=AcDbAssocPathActionParam|90 BL"),
        ["ACDBASSOCVERTEXACTIONPARAM"] = new(SingleParameter + "100=AcDbAssocVertexActionParam|90 BL|10 3BD"),
        ["ASSOCDIMDEPENDENCYBODY"] = new("100=AcDbAssocDependencyBody|90 BS|100=AcDbImpAssocDimDependencyBodyBase|"
            + "90 BS|1 T|100=AcDbAssocDimDependencyBody|90 BS"),
        ["MENTALRAYRENDERSETTINGS"] = new(RenderSettings + "100=AcDbMentalRayRenderSettings|90 BL|90 BL|90 BL|70 BS|"
            + "40 BD|40 BD|40 BD|40 BD|40 BD|40 BD|70 BS|290 B|290 B|90 BL|90 BL|90 BL|290 B|90 BL|290 B|40 BD|90 BL|"
            + "90 BL|90 BL|90 BL|290 B|90 BL|290 B|290 B|290 B|40 BD|40 BD|40 BD|70 BS|70 BS|40 BD|70 BS|70 BS|290 B|"
            + "1 T|90 BL|70 BS|90 BL|290 B|40 BD"),
        ["RAPIDRTRENDERSETTINGS"] = new(RenderSettings
            + "100=AcDbRapidRTRenderSettings|90 BL|70 BL|90 BL|90 BL|70 BL|70 BL|40 BD|40 BD|290 B"),
        ["RENDERENVIRONMENT"] = new("100=AcDbRenderEnvironment|90 BL|290 B|290 B|280 RC|280 RC|280 RC|40 BD|40 BD|"
            + "40 BD|40 BD|290 B|1 T"),
        ["RENDERGLOBAL"] = new(
            "100=AcDbRenderGlobal|90 BL|90 BL|90 BL|290 B|1 T|90 BL|90 BL|290 B|290 B"),
    };
}
