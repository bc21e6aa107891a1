using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Dynamic blocks: their parameters, and the state that a reference is saved in.</summary>
public class DynamicBlockTests
{
    private static readonly object[] Element = [100, "AcDbEvalExpr", 90, 7, 98, 33, 99, 29, 100, "AcDbBlockElement",
        300, "Visibility", 98, 33, 99, 29, 1071, 0];

    private static readonly object[] Parameter = [0, "BLOCKVISIBILITYPARAMETER", 5, "F7", 330, "F6", .. Element,
        100, "AcDbBlockParameter", 280, 1, 281, 0, 100, "AcDbBlock1PtParameter", 1010, 1, 1020, 2, 1030, 0, 93, 8, 170,
        0, 171, 0, 100, "AcDbBlockVisibilityParameter", 281, 1, 301, "State", 302, "", 91, 0, 93, 2, 331, "E1", 331,
        "E2", 92, 2, 303, "Open", 94, 1, 332, "E1", 95, 0, 303, "Closed", 94, 1, 332, "E2", 95, 0];

    [Fact]
    public void A_reference_shows_the_state_that_is_saved()
    {
        DxfImage image = Drawing();
        CadInsertObject anonymous = (CadInsertObject)image.Entities[0];
        CadInsertObject direct = (CadInsertObject)image.Entities[1];
        CadInsertObject other = (CadInsertObject)image.Entities[2];
        Assert.Equal("Closed", image.GetVisibilityState(anonymous));
        Assert.Equal("Open", image.GetVisibilityState(direct));
        Assert.Equal("", image.GetVisibilityState(other));
        Assert.Equal("DOOR", image.GetDynamicBlock(anonymous)!.Name);
        Assert.Null(image.GetDynamicBlock(other));
        Assert.Equal("*U3", anonymous.GraphicsBlockName);
    }

    [Fact]
    public void Visibility_parameters_list_their_states()
    {
        CadBlockVisibilityParameter parameter = Drawing().Objects.OfType<CadBlockVisibilityParameter>().Single();
        Assert.Equal(["Open", "Closed"], parameter.GetStateNames());
        Assert.Equal(["E2"], parameter.GetVisibleEntities("Closed"));
        Assert.Equal((7, "State", 2.0), (parameter.NodeId, parameter.Label, parameter.DefinitionPoint.Y));
        Assert.Empty(parameter.UnknownCodes);
    }

    [Fact]
    public void Parameters_actions_and_grips_are_written_as_they_were()
    {
        object[] linear = [0, "BLOCKLINEARPARAMETER", 5, "F9", 330, "F6", .. Element, 100, "AcDbBlockParameter", 280, 1,
            281, 0, 100, "AcDbBlock2PtParameter", 1010, 0, 1020, 0, 1030, 0, 1011, 5, 1021, 0, 1031, 0, 170, 4, 91, 3,
            91, 0, 91, 0, 91, 0, 171, 1, 92, 9, 301, "EndXDelta", 172, 0, 173, 0, 174, 0, 177, 0, 100,
            "AcDbBlockLinearParameter", 305, "Distance", 306, "", 140, 5, 307, "", 96, 3, 141, 1, 142, 9, 143, 0.5, 175,
            2, 144, 1, 144, 2];
        object[] stretch = [0, "BLOCKSTRETCHACTION", 5, "FA", 330, "F6", .. Element, 100, "AcDbBlockAction", 70, 1, 91,
            9, 71, 1, 330, "E1", 1010, 1, 1020, 1, 1030, 0, 100, "AcDbBlockStretchAction", 92, 9, 301, "EndXDelta", 93,
            9, 302, "EndYDelta", 72, 2, 1011, 0, 1021, 0, 1011, 4, 1021, 4, 73, 1, 331, "E1", 74, 2, 94, 0, 94, 1, 75,
            1, 95, 3, 76, 1, 94, 0, 140, 1, 141, 0, 280, 0];
        object[] grip = [0, "BLOCKLINEARGRIP", 5, "FB", 330, "F6", .. Element, 100, "AcDbBlockGrip", 91, 4, 92, 5, 1010,
            5, 1020, 0, 1030, 0, 280, 0, 93, -1, 100, "AcDbBlockLinearGrip", 140, 1, 141, 0, 142, 0];
        string text = DxfText.Header("AC1032") + DxfText.Entities() + DxfText.Tags(
            [0, "SECTION", 2, "OBJECTS", .. linear, .. stretch, .. grip, .. Parameter, 0, "ENDSEC", 0, "EOF"]);
        DxfImage image = DxfText.Load(text);
        string[] types = [.. image.Objects.Select(item => item.TypeNameText)];
        Assert.Equal(
            TagList.Objects(System.Text.Encoding.Latin1.GetBytes(text), types).Values,
            TagList.Objects(System.Text.Encoding.UTF8.GetBytes(DxfText.Save(image)), types).Values);
        CadBlockLinearParameter parameter = image.Objects.OfType<CadBlockLinearParameter>().Single();
        Assert.Equal([1, 2], parameter.Values);
        Assert.Equal([9], parameter.GetConnectedNodes());
        CadBlockStretchAction action = image.Objects.OfType<CadBlockStretchAction>().Single();
        Assert.All(image.Objects, item => Assert.Empty(item.UnknownCodes));
        action.Elements[0].PointIndices.Add(5);
        Assert.Equal([0, 1, 5], DxfText.Reload(image).Objects.OfType<CadBlockStretchAction>().Single()
            .Elements[0].PointIndices);
    }

    private static object[] Record(string handle, string name, params object[] rest) =>
        [0, "BLOCK_RECORD", 5, handle, .. rest.TakeWhile(part => part is not 1001), 100, "AcDbSymbolTableRecord", 100,
            "AcDbBlockTableRecord", 2, name, .. rest.SkipWhile(part => part is not 1001)];

    private static object[] Block(string name, params object[] entities) =>
        [0, "BLOCK", 100, "AcDbEntity", 8, "0", 100, "AcDbBlockBegin", 2, name, 70, 0, 10, 0, 20, 0, 30, 0, .. entities,
            0, "ENDBLK", 100, "AcDbEntity", 8, "0", 100, "AcDbBlockEnd"];

    private static object[] Line(string handle, int hidden) =>
        [0, "LINE", 5, handle, 100, "AcDbEntity", 8, "0", 60, hidden, 100, "AcDbLine", 10, 0, 20, 0, 11, 1, 21, 1];

    private static object[] Insert(string handle, string name, params object[] group) =>
        [0, "INSERT", 5, handle, .. group, 100, "AcDbEntity", 8, "0", 100, "AcDbBlockReference", 2, name, 10, 0, 20, 0];

    private static object[] Extension(string handle) => [102, "{ACAD_XDICTIONARY", 360, handle, 102, "}"];

    private static object[] Dictionary(string handle, string entry, string target) =>
        [0, "DICTIONARY", 5, handle, 100, "AcDbDictionary", 280, 1, 281, 1, 3, entry, 360, target];

    private static DxfImage Drawing() => DxfText.Load(DxfText.Header("AC1032") + DxfText.Tags(
    [
        0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "BLOCK_RECORD", 5, "1", 100, "AcDbSymbolTable", 70, 3,
        .. Record("D1", "DOOR", Extension("F5")),
        .. Record("D2", "*U3", 1001, "AcDbBlockRepBTag", 1070, 1, 1005, "D1"),
        .. Record("D3", "OTHER"),
        0, "ENDTAB", 0, "ENDSEC", 0, "SECTION", 2, "BLOCKS",
        .. Block("DOOR", [.. Line("E1", 0), .. Line("E2", 1)]),
        .. Block("*U3", Line("E3", 0)),
        .. Block("OTHER"),
        0, "ENDSEC", 0, "SECTION", 2, "ENTITIES",
        .. Insert("A1", "*U3", Extension("C1")), .. Insert("A2", "DOOR"), .. Insert("A3", "OTHER"),
        0, "ENDSEC", 0, "SECTION", 2, "OBJECTS",
        .. Dictionary("F5", "ACAD_ENHANCEDBLOCK", "F6"),
        0, "ACAD_EVALUATION_GRAPH", 5, "F6", 100, "AcDbEvalGraph", 96, 7, 97, 7, 91, 0, 93, 32, 95, 7, 360, "F7", 92,
        -1, 92, -1, 92, -1, 92, -1,
        .. Parameter,
        .. Dictionary("C1", "AcDbBlockRepresentation", "C2"), .. Dictionary("C2", "AppDataCache", "C3"),
        .. Dictionary("C3", "ACAD_ENHANCEDBLOCKDATA", "C4"), .. Dictionary("C4", "7", "C5"),
        0, "XRECORD", 5, "C5", 100, "AcDbXrecord", 280, 1, 1071, 0, 70, 25, 1, "Closed",
        0, "ENDSEC", 0, "EOF",
    ]));
}
