using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Scene;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Drawings that others refer to: a square on a layer of its own, beside the drawing.</summary>
public sealed class ExternalDrawingTests : IDisposable
{
    private const string Skipped = "INSERT of an external drawing";

    private readonly string _folder = Directory.CreateTempSubdirectory("korvan").FullName;

    public void Dispose() => Directory.Delete(_folder, recursive: true);

    [Theory]
    [InlineData("plan.dxf", "plan.dxf", true)]
    [InlineData("plan.dwg", "C:\\Projects\\House\\PLAN.DWG", true)] // of another system
    [InlineData("plan.dxf", "other.dxf", false)]
    public void Drawings_in_the_folder_are_drawn_at_their_references(string file, string named, bool isFound)
    {
        Save(file, Square("WALL"));
        DrawingList list = SceneList.Build(Host(Reference("Plan", 4), External("Plan", named)));
        Assert.Equal(isFound ? 0 : 1, list.Skipped.GetValueOrDefault(Skipped));
        Assert.Equal(isFound, list.Layers.Contains("Plan|WALL"));
        if (isFound)
        {
            Assert.Equal(AciPalette.Color(3), Assert.Single(list.Items.ToArray()).Color); // of its layer in the file
            SceneList.AssertBox(list, 4, 4, 14, 14);
        }
    }

    [Fact]
    public void Layers_have_the_state_that_they_have_in_the_drawing_with_the_reference()
    {
        Save("plan.dxf", Square("WALL"));
        CadImage host = Host(Reference("Plan", 0), External("Plan", "plan.dxf"));
        CadLayerTable layer = TestPage.AddLayer(host, "Plan|WALL", 5);
        Assert.Equal(AciPalette.Color(5), SceneList.Build(host).Items[0].Color);
        layer.IsFrozen = true;
        Assert.True(SceneList.Build(host).Items.IsEmpty);
    }

    // A drawing that refers to its own host ends at the second time; overlays show in their own host alone.
    [Theory]
    [InlineData(4, 2)]
    [InlineData(12, 1)]
    public void References_go_on_through_drawings_but_for_overlays(int flags, int squares)
    {
        CadImage inner = Host(Reference("Inner", 20), External("Inner", "inner.dxf", (short)flags));
        inner.AddEntity(Square("0"));
        Save("plan.dxf", inner);
        CadImage innermost = Host(Reference("Plan", 0), External("Plan", "plan.dxf"));
        innermost.AddEntity(Square("0"));
        Save("inner.dxf", innermost);
        DrawingList list = SceneList.Build(Host(Reference("Plan", 0), External("Plan", "plan.dxf")));
        Assert.Equal(squares, list.Items.Length);
    }

    // Each name leads to the drawing again; all it may take is what one file may.
    [Fact]
    public void A_drawing_is_read_once_whatever_its_names_are()
    {
        CadImage drawing = TestPage.Drawing([.. Enumerable.Range(0, 5).Select(i => Reference($"N{i}", i))]);
        for (int i = 0; i < 5; i++)
        {
            drawing.BlockEntities.Add(External($"N{i}", "plan.dxf"));
        }

        Save("plan.dxf", drawing);
        drawing.Drawing.Folder = _folder;
        long Taken(CadImage host)
        {
            using Budget budget = Budget.Begin(sourceLength: 1);
            long before = budget.Memory;
            SceneList.Build(host);
            return budget.Memory - before;
        }

        Assert.Equal(Taken(Host(Reference("N0", 0), External("N0", "plan.dxf"))), Taken(drawing));
    }

    [Fact]
    public void Damaged_drawings_are_reported()
    {
        File.WriteAllText(Path.Combine(_folder, "plan.dwg"), "AC1032 that goes on as no drawing does");
        DrawingList list = SceneList.Build(Host(Reference("Plan", 0), External("Plan", "plan.dwg")));
        Assert.Equal(1, list.Skipped[Skipped]);
    }

    private static CadSolid Square(string layer) => TestPage.Square(0, 0, 10, 256, layer);

    private static CadInsertObject Reference(string block, double at) => TestPage.Insert(block, at, at);

    private static CadBlockEntity External(string name, string path, short flags = 4) =>
        new() { Name = name, XRefPathName = path, Flags = flags };

    private CadImage Host(CadInsertObject reference, CadBlockEntity block)
    {
        CadImage drawing = TestPage.Drawing(reference);
        drawing.BlockEntities.Add(block);
        drawing.Drawing.Folder = _folder;
        return drawing;
    }

    private void Save(string name, CadSolid square)
    {
        CadImage drawing = TestPage.Drawing();
        TestPage.AddLayer(drawing, "WALL", 3);
        drawing.AddEntity(square);
        Save(name, drawing);
    }

    private void Save(string name, CadImage drawing)
    {
        bool isDatabase = name.EndsWith(".dwg", StringComparison.Ordinal);
        ImageOptionsBase options = isDatabase ? new DwgOptions() : new DxfOptions();
        using FileStream file = File.Create(Path.Combine(_folder, name));
        drawing.Save(file, options);
    }
}
