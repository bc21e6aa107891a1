using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Parts that files lack or have without need, and what is saved of them.</summary>
public class RepairTests
{
    [Fact]
    public void A_sequence_end_after_no_attributes_belongs_to_its_insertion()
    {
        DxfImage drawing = DxfText.Load(DxfText.Drawing(
            0, "INSERT", 5, "A1", 66, 1, 8, "0", 2, "X", 10, 0, 20, 0, 0, "SEQEND", 5, "A2", 8, "0",
            0, "INSERT", 5, "A3", 8, "0", 2, "X", 10, 5, 20, 0, 0, "POINT", 8, "0", 10, 1, 20, 1));
        foreach (CadImage image in new CadImage[] { drawing, DxfText.Reload(drawing) })
        {
            Assert.Equal(["INSERT", "INSERT", "POINT"], image.Entities.Select(static one => one.DxfName));
            var first = (CadInsertObject)image.Entities[0];
            Assert.Equal(0xA2UL, first.Seqend!.Handle);
            Assert.Null(((CadInsertObject)image.Entities[1]).Seqend);
        }

        string[] insertion = TagList.Objects(System.Text.Encoding.UTF8.GetBytes(DxfText.Save(drawing)), "SEQEND")["A2"];
        Assert.Contains("330: A1", insertion);
    }

    [Fact]
    public void Layouts_of_a_file_without_objects_are_saved_in_a_dictionary()
    {
        DxfImage drawing = DxfText.Reload(DxfText.Load(DxfText.Drawing(0, "POINT", 8, "0", 10, 1, 20, 1)));
        CadDictionaryBase root = Assert.IsAssignableFrom<CadDictionaryBase>(drawing.Objects[0]);
        Assert.True(root.TryGet("ACAD_LAYOUT", out ulong handle));
        CadDictionaryBase layouts = drawing.Objects.OfType<CadDictionaryBase>().Single(one => one.Handle == handle);
        Assert.Equal(root.Handle, layouts.Owner);
        Assert.Equal(2, drawing.Layouts.Count);
        foreach (CadLayout layout in drawing.Layouts)
        {
            Assert.True(layouts.TryGet(layout.LayoutName, out ulong own));
            Assert.Equal((layout.Handle, layouts.Handle), (own, layout.Owner));
        }
    }
}
