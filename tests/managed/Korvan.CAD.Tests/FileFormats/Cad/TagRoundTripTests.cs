using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>What other programs wrote is written again tag by tag, and clones are written as their originals.</summary>
public class TagRoundTripTests
{
    [DrawingTheory]
    [InlineData("MULTILEADER", 5)]
    [InlineData("MLEADERSTYLE", 10)]
    [InlineData("ACAD_TABLE", 3)]
    [InlineData("MESH", 1)]
    [InlineData("MLINESTYLE", 10)]
    [InlineData("ACAD_EVALUATION_GRAPH", 4)]
    [InlineData("ACDBASSOCACTION", 3)]
    [InlineData("ACDBASSOCDEPENDENCY", 3)]
    [InlineData("ACDBASSOCGEOMDEPENDENCY", 3)]
    [InlineData("ACDBASSOCNETWORK", 6)]
    [InlineData("ACDBASSOCPERSSUBENTMANAGER", 4)]
    [InlineData("ACDBPERSSUBENTMANAGER", 4)]
    [InlineData("ACDBDATATABLE", 1)]
    [InlineData("ACDBSECTIONVIEWSTYLE", 12)]
    [InlineData("ACSH_BOX_CLASS", 2)]
    [InlineData("ACSH_HISTORY_CLASS", 4)]
    [InlineData("ACAD_PROXY_ENTITY", 1)]
    [InlineData("CELLSTYLEMAP", 13)]
    [InlineData("DIMASSOC", 33)]
    [InlineData("FIELD", 20)]
    [InlineData("FIELDLIST", 2)]
    [InlineData("LIGHT", 3)]
    [InlineData("MATERIAL", 57)]
    [InlineData("RASTERVARIABLES", 3)]
    [InlineData("SUN", 12)]
    [InlineData("TABLECONTENT", 3)]
    [InlineData("TABLEGEOMETRY", 3)]
    [InlineData("TABLESTYLE", 13)]
    [InlineData("VISUALSTYLE", 317)]
    public void Objects_are_saved_as_they_were_read(string type, int atLeast)
    {
        int seen = 0;
        foreach (string file in TextDrawings())
        {
            Dictionary<string, string[]> before = TagList.Objects(File.ReadAllBytes(file), type);
            if (before.Count == 0)
            {
                continue;
            }

            using MemoryStream stream = new();
            Image.Load(file).Save(stream);
            Dictionary<string, string[]> after = TagList.Objects(stream.ToArray(), type);
            Assert.Equal(before.Keys.Order(), after.Keys.Order());
            Assert.All(before, item => AssertSame(type, item.Value, after[item.Key]));
            seen += before.Count;
        }

        Assert.True(seen >= atLeast, $"only {seen} objects of the type {type}");
    }

    [DrawingFact]
    public void Clones_are_written_as_their_originals()
    {
        HashSet<Type> types = [];
        foreach (string file in SharedDrawings.AllDxf())
        {
            CadImage image = (CadImage)Image.Load(file);
            foreach (CadEntityBase entity in image.BlockEntities.Items.SelectMany(block => block.Entities))
            {
                Assert.Equal(TagList.Of(entity), TagList.Of(entity.Clone()));
                types.Add(entity.GetType());
            }
        }

        Assert.True(types.Count >= 30, $"only {types.Count} types of entities");
    }

    private static void AssertSame(string type, string[] before, string[] after)
    {
        if (type == "MLEADERSTYLE")
        {
            // Some programs leave fields of styles out or swap two of them: nothing may be lost.
            Assert.Empty(before.Except(after));
            return;
        }

        Assert.Equal(before, after);
    }

    private static IEnumerable<string> TextDrawings() => SharedDrawings.AllDxf()
        .Where(file => !File.ReadAllBytes(file).AsSpan().StartsWith("AutoCAD Binary"u8));
}
