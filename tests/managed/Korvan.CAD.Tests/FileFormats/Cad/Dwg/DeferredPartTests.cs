using System.IO;
using System.Linq;
using System.Threading.Tasks;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg;

/// <summary>Extended data and the tags of records are made when they are asked for first. Neither saving nor changes
/// depend on whether that was before.</summary>
public class DeferredPartTests
{
    private const int CloningFlag = 280; // every record of a database has one

    public static readonly TheoryData<CadAcadVersion> Releases =
        [CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1032];

    [Theory]
    [MemberData(nameof(Releases))]
    public void Parts_that_nobody_asked_for_are_saved(CadAcadVersion release)
    {
        using CadImage loaded = Reload(Drawing(), release);
        foreach (CadAcadVersion other in (CadAcadVersion[])[release, CadAcadVersion.AC1015, CadAcadVersion.AC1032])
        {
            using CadImage again = Reload(loaded, other);
            Verify(again, "note äß", 4);
        }
    }

    [Theory]
    [MemberData(nameof(Releases))]
    public void Changes_of_parts_are_saved(CadAcadVersion release)
    {
        using CadImage loaded = Reload(Drawing(), release);
        loaded.Entities.Single().XdataContainer.Find("ACME")!.Data[0].Value = "changed";
        RecordOf(loaded).Data.Add(new CadCodeValue(70, "8"));
        using CadImage again = Reload(loaded, release);
        Verify(again, "changed", 5);
        Assert.Equal("8", RecordOf(again).Data[^1].Value.Trim());

        again.Entities.Single().XdataContainer.XdataEntities.Clear();
        RecordOf(again).Data.Clear();
        using CadImage emptied = Reload(again, release);
        Assert.Empty(emptied.Entities.Single().XdataContainer.XdataEntities);
        Assert.Equal(CloningFlag, Assert.Single(RecordOf(emptied).Data).Attribute);
    }

    [Fact]
    public void Threads_that_ask_at_once_see_the_same_values()
    {
        for (int round = 0; round < 20; round++)
        {
            using CadImage loaded = Reload(Drawing(), CadAcadVersion.AC1032);
            Parallel.For(0, 8, _ => Verify(loaded, "note äß", 4));
        }
    }

    private static CadImage Drawing()
    {
        CadLine line = new() { SecondPoint = new Cad3DPoint(4, 3, 0) };
        line.XdataContainer.XdataEntities.Add(new CadXdata("ACME"));
        line.XdataContainer.XdataEntities[0].Data.Add(new CadCodeValue(1000, "note äß"));
        line.XdataContainer.XdataEntities[0].Data.Add(new CadCodeValue(1040, "2.5"));
        CadXRecord record = new() { ObjectHandle = "ABC" };
        record.Data.Add(new CadCodeValue(CloningFlag, "1"));
        record.Data.Add(new CadCodeValue(1, "text"));
        record.Data.Add(new CadCodeValue(40, "1.5"));
        record.Data.Add(new CadCodeValue(90, "-7"));
        CadImage image = new();
        image.AddEntity(line);
        image.Objects.Add(record);
        return image;
    }

    private static CadImage Reload(CadImage image, CadAcadVersion release)
    {
        MemoryStream saved = new();
        image.Save(saved, new DwgOptions { Version = release });
        saved.Position = 0;
        return (CadImage)Image.Load(saved);
    }

    private static CadXRecord RecordOf(CadImage image) =>
        image.Objects.OfType<CadXRecord>().Single(static record => record.ObjectHandle == "ABC");

    private static void Verify(CadImage image, string note, int tags)
    {
        CadXdata data = image.Entities.Single().XdataContainer.Find("ACME")!;
        Assert.Equal([(1000, note), (1040, "2.5")], data.Data.Select(static tag => (tag.Attribute, tag.Value.Trim())));
        string[] values = [.. RecordOf(image).Data.Select(static tag => tag.Value.Trim())];
        Assert.Equal(tags, values.Length);
        Assert.Equal(["1", "text", "1.5", "-7"], values[..4]);
    }
}
