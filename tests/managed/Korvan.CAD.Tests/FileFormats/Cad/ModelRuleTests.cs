using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cad.DxfText;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>What cannot be saved is refused where it is set; what stands in a file is kept.</summary>
public sealed class ModelRuleTests
{
    public static TheoryData<string> AllDxf() => SharedDrawings.Root is null ? []
        : [.. SharedDrawings.AllDxf().Select(static path => Path.GetFileName(path))];

    [Fact]
    public void Lists_refuse_nothing_and_what_stands_somewhere_already()
    {
        CadImage image = new();
        CadLine line = new();
        image.AddEntity(line);
        Assert.Contains("an item of entities must not be None",
            Assert.Throws<ArgumentNullException>(() => image.Entities.Add(null!)).Message);
        Assert.Throws<ArgumentNullException>(() => image.Objects.Insert(0, null!));
        Assert.Throws<ArgumentNullException>(() => new CadLwPolyline().Coordinates.Add(null!));
        Assert.Contains("in this list already", Assert.Throws<CadException>(() => image.AddEntity(line)).Message);
        foreach (CadImage other in new[] { image, new CadImage() })
        {
            CadException failure = Assert.Throws<CadException>(() => other.PaperSpaceEntities.Add(line));
            Assert.Contains("LINE on 0", failure.Message);
            Assert.Contains("BLOCK *Model_Space", failure.Message);
            Assert.Contains("clone()", failure.Message);
        }

        Assert.True(image.RemoveEntity(line));
        CadImage next = new();
        next.AddEntity(line);
        next.Entities.Clear();
        image.AddEntity(line);
        Assert.Equal(image.Entities.Count, Reload(image).Entities.Count);
    }

    [Fact]
    public void Entities_can_change_places_but_not_stand_twice_when_saved()
    {
        CadImage image = new();
        CadLine[] lines = [new(), new()];
        image.Entities.Add(lines[0]);
        image.Entities.Add(lines[1]);
        (image.Entities[0], image.Entities[1]) = (image.Entities[1], image.Entities[0]);
        Assert.Equal(lines.Reverse(), image.Entities);
        Assert.Equal(2, Reload(image).Entities.Count);
        image.Entities[0] = lines[0];
        Assert.Contains("stands 2 times", Assert.Throws<ImageSaveException>(() => Save(image)).Message);
        new CadImage().AddEntity(lines[1]); // was displaced
        image.Entities.RemoveAt(0);
        Assert.Single(Reload(image).Entities);
    }

    [DrawingTheory]
    [MemberData(nameof(AllDxf))]
    public void A_clone_says_the_same_and_belongs_to_nobody(string name)
    {
        if (Image.Load(SharedDrawings.Dxf(name)) is not CadImage image)
        {
            return;
        }

        using CadImage other = new();
        foreach (CadEntityBase entity in DrawingWalk.Entities(image.Drawing))
        {
            CadEntityBase clone = entity.Clone();
            Assert.Same(entity.GetType(), clone.GetType());
            Assert.Equal(("", ""), (clone.ObjectHandle, clone.SoftOwner));
            Assert.Equal(Content(entity), Content(clone));
            other.AddEntity(clone);
        }

        Assert.Equal(other.Entities.Count, Reload(other).Entities.Count);
    }

    [Fact]
    public void A_clone_has_parts_of_its_own()
    {
        CadInsertObject insert = new() { Name = "B" };
        insert.Attributes.Add(new CadAttrib { DefinitionTagString = "NR", DefaultValue = "1" });
        CadBlockEntity block = new() { Name = "B" };
        block.Entities.Add(insert);
        CadBlockEntity copy = (CadBlockEntity)block.Clone();
        CadAttrib attribute = ((CadInsertObject)copy.Entities[0]).Attributes[0];
        attribute.DefaultValue = "2";
        Assert.Equal("1", insert.Attributes[0].DefaultValue);
        CadPolyline polyline = new();
        polyline.Vertices.Add(new Cad2DVertex());
        Assert.NotSame(polyline.Vertices[0], ((CadPolyline)polyline.Clone()).Vertices[0]);
        Assert.Throws<ImageSaveException>(() => new CadCircle { Radius = double.NaN }.Clone());
    }

    [Fact]
    public void Colours_and_names_that_drawings_cannot_hold_are_refused_when_set_and_kept_when_read()
    {
        CadLine line = new() { ColorId = 256, LayerName = "xref|wall" };
        CadLayerTable layer = new() { Name = "wall", ColorId = -255 };
        Assert.Equal("color_id cannot be 999. It has to be 0 to 256.",
            Assert.Throws<ArgumentOutOfRangeException>(() => line.ColorId = 999).Message);
        Assert.StartsWith("color_id cannot be 0.",
            Assert.Throws<ArgumentOutOfRangeException>(() => layer.ColorId = 0).Message);
        Assert.Throws<ArgumentOutOfRangeException>(() => layer.ColorId = short.MinValue);
        foreach (string name in new[] { "a<b>", "a:b", "a;b", "a?", "a*", "a=b", "a`", "a\"", "a\\b", "a/b", "a\nb",
            "|a", "a|b|c" })
        {
            Assert.Contains("cannot name a layer", Assert.Throws<CadException>(() => line.LayerName = name).Message);
            Assert.Throws<CadException>(() => layer.Name = name);
        }

        DxfImage read = Load(Drawing(0, "LINE", 8, "a<b", 62, 999, 10, 0, 20, 0, 11, 1, 21, 1));
        Assert.Equal(("a<b", (short)999), (read.Entities[0].LayerName, read.Entities[0].ColorId));
        DxfImage again = Reload(read);
        Assert.Equal(("a<b", (short)999), (again.Entities[0].LayerName, again.Entities[0].ColorId));
        Assert.NotNull(again.Layers.Find("a<b"));
    }

    [Fact]
    public void Texts_tell_what_objects_are()
    {
        CadImage image = new();
        CadLine line = new() { LayerName = "TREE", SecondPoint = new Cad3DPoint(10, 5, 0) };
        image.AddEntity(line);
        Assert.Equal("LINE on TREE from (0, 0, 0) to (10, 5, 0)", line.ToString());
        Assert.Equal("BLOCK *Model_Space with 1 entity", image.BlockEntities["*Model_Space"].ToString());
        Assert.Equal("LAYER 0, colour 7", image.Layers["0"].ToString());
        Assert.Equal("LAYOUT Model", image.Layouts["Model"].ToString());
        Assert.Equal("CadImage of release AC1032, 1 in model space", image.ToString());
        foreach (Type type in typeof(CadEntityBase).Assembly.GetExportedTypes().Where(static type =>
            !type.IsAbstract && type.IsSubclassOf(typeof(CadBaseObject)) && type.GetConstructor([]) is not null))
        {
            Assert.NotEmpty(Activator.CreateInstance(type)!.ToString()!);
        }

        image.Dispose();
        Assert.Equal("CadImage, disposed", image.ToString());
        Func<object>[] parts = [() => image.Entities, () => image.Layers, () => image.Header, () => image.MinPoint];
        foreach (Func<object> part in parts)
        {
            Assert.Contains("CadImage has been disposed", Assert.Throws<ObjectDisposedException>(part).Message);
        }
    }

    // What is written, without handles and owners.
    private static List<string> Content(CadEntityBase entity)
    {
        using MemoryStream stream = new();
        DxfTagWriter writer = new(stream, new UTF8Encoding(false), 2018);
        new DxfObjectWriter(writer).WriteEntity(entity);
        writer.Flush();
        string[] lines = Encoding.UTF8.GetString(stream.ToArray()).Split('\n');
        List<string> content = [];
        bool tied = false;
        for (int i = 0; i + 1 < lines.Length; i += 2)
        {
            (string code, string value) = (lines[i].Trim(), lines[i + 1].Trim());
            tied = code == "102" ? value is "{ACAD_REACTORS" or "{ACAD_XDICTIONARY" || (tied && value != "}") : tied;
            bool isEnd = code == "102" && value == "}";
            if (!tied && !isEnd && code is not ("5" or "330"))
            {
                content.Add($"{code} {value}");
            }
        }

        return content;
    }
}
