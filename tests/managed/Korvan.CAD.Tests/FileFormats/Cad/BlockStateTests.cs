using System;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Which block and which state a reference shows, in files that state it otherwise, or wrongly.</summary>
public class BlockStateTests
{
    /// <summary>What is different, the tags that it is about and their replacement, the block and the state.</summary>
    public static readonly TheoryData<string, string, string, string, string> Files = new()
    {
        { "nothing", "", "", "DOOR", "Closed" },
        { "another state is saved", "1|Closed|0|", "1|Open|0|", "DOOR", "Open" },
        { "a state that there is not: what is visible decides", "1|Closed|0|", "1|Ajar|0|", "DOOR", "" },
        { "values of another node", "3|7|360|C5", "3|8|360|C5", "DOOR", "" },
        { "a value that is not there", "3|7|360|C5", "3|7|360|EEE", "DOOR", "" },
        { "no cache of values", "3|AppDataCache", "3|Other", "DOOR", "" },
        { "a tag that leads nowhere", "1005|D1", "1005|EEE", "", "" },
        { "a tag that is no handle", "1005|D1", "1005|0", "", "" },
        { "a block without a graph", "3|ACAD_ENHANCEDBLOCK|360|F6", "3|OTHER|360|F6", "", "" },
        { "a graph without parameters", "95|7|360|F7", "95|7|360|EEE", "DOOR", "" },
        { "a graph that is not there", "3|ACAD_ENHANCEDBLOCK|360|F6", "3|ACAD_ENHANCEDBLOCK|360|EEE", "", "" },
        { "no dictionary of the block", "360|F5|102|}", "360|EEE|102|}", "", "" },
        { "the reference has no data", "360|C1|102|}", "360|EEE|102|}", "DOOR", "" },
        { "an object of the reference leads to the block instead of a tag", "1001|AcDbBlockRepBTag|1070|1|1005|D1|",
            "", "", "" },
    };

    [Theory]
    [MemberData(nameof(Files))]
    public void References_are_related_to_their_dynamic_block(
        string what, string before, string after, string block, string state)
    {
        string text = Text();
        string changed = before.Length > 0 ? text.Replace(before, after, StringComparison.Ordinal) : text;
        Assert.True(before.Length == 0 || changed != text, what);
        DxfImage image = DxfText.Load(changed.Replace('|', '\n'));
        CadInsertObject reference = Assert.IsType<CadInsertObject>(image.Entities[0]);
        Assert.True(block == (image.GetDynamicBlock(reference)?.Name ?? ""), what);
        Assert.True(state == image.GetVisibilityState(reference), $"{what}: {image.GetVisibilityState(reference)}");
        Assert.Equal(image.GetVisibilityState(reference), image.GetVisibilityState(
            (CadInsertObject)DxfText.Reload(image).Entities[0]));
    }

    [Fact]
    public void Representation_data_leads_to_the_block_where_no_tag_does()
    {
        string text = Text().Replace("1001|AcDbBlockRepBTag|1070|1|1005|D1|", "", StringComparison.Ordinal)
            .Replace("3|AppDataCache|360|C3|", "3|AcDbRepData|360|C6|3|AppDataCache|360|C3|", StringComparison.Ordinal)
            .Replace("0|XRECORD", "0|ACDB_BLOCKREPRESENTATION_DATA|5|C6|100|AcDbBlockRepresentationData|70|1|340|D1|"
                + "0|XRECORD", StringComparison.Ordinal);
        DxfImage image = DxfText.Load(text.Replace('|', '\n'));
        CadInsertObject reference = (CadInsertObject)image.Entities[0];
        Assert.Equal("DOOR", image.GetDynamicBlock(reference)!.Name);
        Assert.Equal("Closed", image.GetVisibilityState(reference));
    }

    private static string Text() => DxfText.Header("AC1032").Replace('\n', '|')
        + "0|SECTION|2|TABLES|0|TABLE|2|BLOCK_RECORD|5|1|100|AcDbSymbolTable|70|2|"
        + "0|BLOCK_RECORD|5|D1|102|{ACAD_XDICTIONARY|360|F5|102|}|100|AcDbSymbolTableRecord|100|AcDbBlockTableRecord|"
        + "2|DOOR|0|BLOCK_RECORD|5|D2|100|AcDbSymbolTableRecord|100|AcDbBlockTableRecord|2|*U3|"
        + "1001|AcDbBlockRepBTag|1070|1|1005|D1|0|ENDTAB|0|ENDSEC|0|SECTION|2|BLOCKS|" + Block("DOOR") + Block("*U3")
        + "0|ENDSEC|0|SECTION|2|ENTITIES|0|INSERT|5|A1|102|{ACAD_XDICTIONARY|360|C1|102|}|100|AcDbEntity|8|0|"
        + "100|AcDbBlockReference|2|*U3|10|0|20|0|0|ENDSEC|0|SECTION|2|OBJECTS|"
        + Dictionary("F5", "3|ACAD_ENHANCEDBLOCK|360|F6|")
        + "0|ACAD_EVALUATION_GRAPH|5|F6|100|AcDbEvalGraph|96|7|97|7|91|0|93|32|95|7|360|F7|92|-1|92|-1|92|-1|92|-1|"
        + "0|BLOCKVISIBILITYPARAMETER|5|F7|330|F6|100|AcDbEvalExpr|90|7|98|33|99|29|100|AcDbBlockElement|300|"
        + "Visibility|98|33|99|29|1071|0|100|AcDbBlockParameter|280|1|281|0|100|AcDbBlock1PtParameter|1010|1|1020|2|"
        + "1030|0|93|8|170|0|171|0|100|AcDbBlockVisibilityParameter|281|1|301|State|302||91|0|93|1|331|E1|92|2|303|"
        + "Open|94|1|332|E1|95|0|303|Closed|94|0|95|0|"
        + Dictionary("C1", "3|AcDbBlockRepresentation|360|C2|") + Dictionary("C2", "3|AppDataCache|360|C3|")
        + Dictionary("C3", "3|ACAD_ENHANCEDBLOCKDATA|360|C4|") + Dictionary("C4", "3|7|360|C5|")
        + "0|XRECORD|5|C5|100|AcDbXrecord|280|1|70|25|1|Closed|0|ENDSEC|0|EOF|";

    private static string Block(string name) => $"0|BLOCK|100|AcDbEntity|8|0|100|AcDbBlockBegin|2|{name}|70|0|10|0|"
        + "20|0|0|ENDBLK|100|AcDbEntity|8|0|100|AcDbBlockEnd|";

    private static string Dictionary(string handle, string entries) =>
        $"0|DICTIONARY|5|{handle}|100|AcDbDictionary|280|1|281|1|{entries}";
}
