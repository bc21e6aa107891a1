using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Tables, blocks and layouts under change, and what is saved of it.</summary>
public class StructureTests
{
    [Fact]
    public void Tables_find_by_name_and_place_whatever_was_added_removed_or_renamed()
    {
        CadLayersList layers = new CadImage().Layers;
        CadLayerTable a = new() { Name = "Alpha" };
        CadLayerTable b = new() { Name = "Beta" };
        layers.Add(a);
        layers.Add(b);
        Assert.Equal(["0", "Alpha", "Beta"], layers.Names);
        Assert.Same(a, layers["ALPHA"]);
        Assert.Same(b, layers[2]);
        (a.Name, b.Name) = (b.Name, a.Name);
        Assert.Same(b, layers["alpha"]);
        Assert.Same(a, layers["beta"]);
        Assert.True(layers.Remove(a));
        Assert.False(layers.Remove(a));
        Assert.False(layers.Contains("beta"));
        Assert.Equal(2, layers.Count);
        Assert.Equal(layers.Names, layers.Items.Select(layer => layer.Name));
        Assert.Contains("'Beta'", Assert.Throws<CadException>(() => layers["Beta"]).Message);
        Assert.Throws<ArgumentOutOfRangeException>(() => layers[2]);
        Assert.Throws<ArgumentNullException>(() => layers.Add(null!));
        Assert.Throws<ArgumentNullException>(() => layers.Find(null!));
    }

    [Theory]
    [InlineData(-7, false, 7)] // switched off: the number is negative
    [InlineData(3, true, 3)]
    public void Layers_that_are_off_keep_their_colour(short stored, bool on, int color)
    {
        CadLayerTable layer = new() { ColorId = stored };
        Assert.Equal(on, layer.IsOn);
        layer.IsOn = true;
        layer.IsOn = true;
        Assert.Equal(color, layer.ColorId);
        layer.IsOn = false;
        layer.IsOn = false;
        Assert.Equal(-color, layer.ColorId);
    }

    [Fact]
    public void Renamed_layers_line_types_and_styles_are_saved_under_their_new_names_alone()
    {
        CadImage image = DxfText.Reload(Furnished());
        image.Layers["Walls"].Name = "Mauern";
        image.LineTypes["DASHED"].Name = "STRICHE";
        image.Styles["Notes"].Name = "Notizen";
        image.Entities[0].LayerName = "Mauern";
        CadImage again = DxfText.Reload(image);
        Assert.Equal(["0", "Mauern"], again.Layers.Names);
        Assert.Equal(["ByBlock", "ByLayer", "Continuous", "STRICHE"], again.LineTypes.Names);
        Assert.Equal(["Standard", "Notizen"], again.Styles.Names);
        Assert.Equal(image.Layers["Mauern"].ObjectHandle, again.Layers["Mauern"].ObjectHandle);
    }

    [Fact]
    public void A_deleted_layer_comes_back_only_where_something_lies_on_it()
    {
        CadImage image = DxfText.Reload(Furnished());
        image.Layers.Remove(image.Layers["Walls"]);
        Assert.Contains("Walls", DxfText.Reload(image).Layers.Names);
        image.Layers.Remove(image.Layers["Walls"]);
        image.Entities.Clear();
        Assert.Equal(["0"], DxfText.Reload(image).Layers.Names);
    }

    [Fact]
    public void A_renamed_block_keeps_one_record()
    {
        CadImage image = Furnished();
        CadImage saved = DxfText.Reload(image);
        saved.BlockEntities["Door"].Name = "Gate";
        ((CadInsertObject)saved.Entities[1]).Name = "Gate";
        CadImage again = DxfText.Reload(saved);
        Assert.True(again.BlockEntities.Contains("Gate") && !again.BlockEntities.Contains("Door"));
        Assert.Equal(again.BlockEntities.Names.Order(), again.BlockRecords.Names.Order());
        Assert.Equal(again.BlockRecords["Gate"].ObjectHandle, again.BlockEntities["Gate"].SoftOwner);
        Assert.DoesNotContain("\nDoor\r", DxfText.Save(saved));
    }

    [Fact]
    public void A_removed_block_leaves_no_record_behind()
    {
        CadImage image = DxfText.Reload(Furnished());
        image.BlockEntities.Remove(image.BlockEntities["Door"]);
        image.Entities.RemoveAt(1);
        CadImage again = DxfText.Reload(image);
        Assert.Equal(again.BlockEntities.Names.Order(), again.BlockRecords.Names.Order());
    }

    [Fact]
    public void A_removed_layout_stays_away_and_a_renamed_one_is_listed_once()
    {
        CadImage image = new();
        image.Layouts.Add(new CadLayout { LayoutName = "Details", TabOrder = 2 });
        CadImage saved = DxfText.Reload(image);
        Assert.Equal(["Model", "Layout1", "Details"], saved.Layouts.Names);
        saved.Layouts.Remove(saved.Layouts["Details"]);
        saved.Layouts["Layout1"].LayoutName = "Plan";
        string text = DxfText.Save(saved);
        Assert.Equal(["Model", "Plan"], DxfText.Load(text).Layouts.Names);
        Assert.DoesNotContain("Details", text);
        Assert.DoesNotContain("Layout1", text);
    }

    [Fact]
    public void Layouts_stand_in_the_order_of_their_tabs()
    {
        CadImage image = new();
        image.Layouts.Add(new CadLayout { LayoutName = "C", TabOrder = 4 });
        image.Layouts.Add(new CadLayout { LayoutName = "A", TabOrder = 2 });
        image.Layouts.Add(new CadLayout { LayoutName = "B", TabOrder = 3 });
        CadImage again = DxfText.Reload(image);
        Assert.Equal(["Model", "Layout1", "A", "B", "C"], again.Layouts.Names);
        Assert.Contains("'D'", Assert.Throws<CadException>(() => again.GetLayoutEntities("D")).Message);
        foreach (string name in new[] { "A", "B", "C" })
        {
            again.GetLayoutEntities(name).Add(new CadText { DefaultValue = name });
        }

        again = DxfText.Reload(again);
        Assert.All(new[] { "A", "B", "C" }, name =>
            Assert.Equal(name, ((CadText)again.GetLayoutEntities(name).Single()).DefaultValue));
    }

    [Fact]
    public void Handles_are_given_once_even_where_an_object_took_that_of_another()
    {
        CadImage image = Furnished();
        image.AddEntity(new CadPoint { ObjectHandle = "FF0" });
        image.AddEntity(new CadPoint { ObjectHandle = "ff0" });
        image.AddEntity(new CadPoint());
        List<string> handles = HandlesOf(DxfText.Save(image));
        Assert.Equal(handles.Count, handles.Distinct().Count());
        Assert.Contains("FF0", handles);
        ulong seed = ulong.Parse(image.Header.HandSeed, NumberStyles.HexNumber, CultureInfo.InvariantCulture);
        Assert.All(handles, handle =>
            Assert.True(ulong.Parse(handle, NumberStyles.HexNumber, CultureInfo.InvariantCulture) < seed));
        Assert.Throws<FormatException>(() => new CadPoint { ObjectHandle = "west" });
    }

    [DrawingFact]
    public void Handles_of_real_drawings_are_unique_after_additions()
    {
        foreach (string file in SharedDrawings.AllDxf())
        {
            CadImage image = (CadImage)Image.Load(file);
            image.AddEntity(new CadPoint());
            image.AddEntity(new CadInsertObject
            {
                Name = "NEW",
                Attributes = { new CadAttrib { DefinitionTagString = "T" } }
            });
            List<ulong> handles = [.. DrawingWalk.All(DxfText.Reload(image).Drawing).Select(item =>
                item.Handle).Where(handle => handle != 0)];
            Assert.True(handles.Count == handles.Distinct().Count(), Path.GetFileName(file));
        }
    }

    [Fact]
    public void Programs_whose_data_is_attached_are_registered()
    {
        CadImage image = new();
        CadLine line = new();
        line.XdataContainer.XdataEntities.Add(new CadXdata("ACME"));
        line.XdataContainer.XdataEntities[0].Data.Add(new CadCodeValue(1000, "note"));
        image.AddEntity(line);
        Assert.Equal(["ACAD", "ACME"], DxfText.Reload(image).AppIdTables.Names);
        Assert.Equal(["ACAD", "ACME"], DxfText.Reload(image).AppIdTables.Names);
    }

    [Fact]
    public void Blocks_with_attributes_and_definitions_come_back_whole()
    {
        CadImage again = DxfText.Reload(Furnished());
        CadBlockEntity door = again.BlockEntities["DOOR"];
        Assert.True(door.BasePoint.Is(1, 2, 3));
        Assert.Equal("Number?", Assert.Single(door.Entities.OfType<CadAttDef>()).PromptString);
        CadInsertObject insert = (CadInsertObject)again.Entities[1];
        Assert.Equal(("NO", "17"), (insert.Attributes[0].DefinitionTagString, insert.Attributes[0].DefaultValue));
        Assert.Equal(insert.ObjectHandle, insert.Attributes[0].SoftOwner);
        insert.Attributes.Clear();
        Assert.Empty(((CadInsertObject)DxfText.Reload(again).Entities[1]).Attributes);
    }

    private static List<string> HandlesOf(string saved)
    {
        string[] lines = saved.Split("\r\n");
        List<string> handles = [];
        bool header = true;
        for (int i = 0; i + 1 < lines.Length; i += 2)
        {
            header &= lines[i + 1] != "ENDSEC";
            if (!header && lines[i].Trim() is "5" or "105")
            {
                handles.Add(lines[i + 1]);
            }
        }

        return handles;
    }

    private static CadImage Furnished()
    {
        CadImage image = new();
        image.Layers.Add(new CadLayerTable { Name = "Walls", ColorId = 3 });
        image.LineTypes.Add(new CadLineTypeTableObject { Name = "DASHED", Pattern = { 2, -1 } });
        image.Styles.Add(new CadStyleTableObject { Name = "Notes" });
        CadBlockEntity door = new() { Name = "Door", BasePoint = new(1, 2, 3) };
        door.Entities.Add(new CadCircle { Radius = 1 });
        door.Entities.Add(new CadAttDef { DefinitionTagString = "NO", PromptString = "Number?" });
        image.BlockEntities.Add(door);
        image.AddEntity(new CadLine { LayerName = "Walls" });
        image.AddEntity(new CadInsertObject
        {
            Name = "Door",
            Attributes = { new CadAttrib { DefinitionTagString = "NO", DefaultValue = "17" } }
        });
        return image;
    }
}
