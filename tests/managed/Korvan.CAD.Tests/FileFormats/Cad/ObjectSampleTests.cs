using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Each sample is read, written as it was, changed, and read again.</summary>
public class ObjectSampleTests
{
    public static IEnumerable<object[]> Types => ObjectSamples.All.Select(sample => new object[] { sample.Type });

    [Theory]
    [MemberData(nameof(Types))]
    public void Values_are_read_and_written_as_they_were(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        byte[] file = File(sample.Type, sample.Fields);
        DxfImage image = DxfText.Load(file);
        CadBaseObject item = Find(image);
        Assert.Equal(sample.Expected, sample.Get(item));
        Assert.Empty(item.UnknownCodes);
        Assert.Equal(WithoutOwner(TagList.Objects(file, type)["ABC"]), WithoutOwner(Written(image, type)));
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Changes_are_written_and_read_again(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        DxfImage image = DxfText.Load(File(sample.Type, sample.Fields));
        string[] before = Written(image, type);
        sample.Change(Find(image));
        string[] after = Written(image, type);
        Assert.NotEqual(before, after);
        DxfImage again = DxfText.Reload(image);
        Assert.Equal(after, Written(again, type));
        Assert.Empty(Find(again).UnknownCodes);
    }

    internal static CadBaseObject Find(CadImage image) => image.Objects.Cast<CadBaseObject>().Concat(image.Entities)
        .Single(item => item.ObjectHandle == "ABC");

    internal static string[] Written(CadImage image, string type) =>
        TagList.Objects(Encoding.UTF8.GetBytes(DxfText.Save(image)), type)["ABC"];

    // The owner of an entity is the block that it is in, which gets a handle when the drawing is saved.
    internal static IEnumerable<string> WithoutOwner(string[] tags) => [.. tags[..2], .. tags[3..]];

    // Entities have the fields of all entities first.
    internal static byte[] File(string type, string fields)
    {
        bool isEntity = Activator.CreateInstance(TypeOf(type)) is CadEntityBase;
        object[] tags =
        [
            0, type, 5, "ABC", 330, "1F", .. isEntity ? new object[] { 100, "AcDbEntity", 8, "0" } : [],
            .. fields.Split('|', StringSplitOptions.RemoveEmptyEntries)
                .SelectMany(tag => new object[] { tag.Split(' ')[0], tag[(tag.IndexOf(' ') + 1)..] }),
        ];
        return Encoding.Latin1.GetBytes(DxfText.Header("AC1032") + DxfText.Entities(isEntity ? tags : [])
            + DxfText.Tags([0, "SECTION", 2, "OBJECTS", .. isEntity ? [] : tags, 0, "ENDSEC", 0, "EOF"]));
    }

    private static Type TypeOf(string type) => PropertyRoundTripTests.Concrete(typeof(CadBaseObject))
        .First(one => ((CadBaseObject)Activator.CreateInstance(one)!).DxfName == type || type == "SECTION_SETTINGS");
}
