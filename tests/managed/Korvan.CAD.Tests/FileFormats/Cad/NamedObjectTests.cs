using System;
using System.Collections;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Tables through the interfaces of untyped lists and dictionaries, dictionaries of objects, and names of
/// types.</summary>
public class NamedObjectTests
{
    [Fact]
    public void Lists_change_by_index_and_forget_the_names_of_what_left()
    {
        var items = new NamedObjects<CadLayerTable>("layer");
        IList list = items;
        (CadLayerTable a, CadLayerTable b, CadLayerTable c) = (Layer("A"), Layer("B"), Layer("C"));
        Assert.Equal(0, list.Add(a));
        Assert.Equal(1, list.Add(c));
        list.Insert(1, b);
        Assert.Equal([a, b, c], list.Cast<object>());
        Assert.Equal((1, -1, -1), (list.IndexOf(b), list.IndexOf(Layer("B")), list.IndexOf("B")));
        Assert.True(list.Contains("b") && list.Contains(c) && !list.Contains(Layer("A")) && !list.Contains(7));
        Assert.Same(b, items.Find("b"));
        list[1] = c;
        Assert.Null(items.Find("b"));
        list.RemoveAt(0);
        Assert.Null(items.Find("A"));
        list.Remove("C"); // a name is not an item
        Assert.Equal(2, list.Count);
        list.Remove(c);
        Assert.Same(c, items.Find("c")); // it was there twice
        object?[] copy = new object?[3];
        list.CopyTo(copy, 2);
        Assert.Equal([null, null, c], copy);
        list.Clear();
        Assert.Null(items.Find("C"));
        Assert.True(list is { IsFixedSize: false, IsReadOnly: false, IsSynchronized: false, Count: 0 });
        Assert.Throws<ArgumentOutOfRangeException>(() => list.Insert(5, a));
    }

    [Fact]
    public void Lists_refuse_other_types_by_name()
    {
        IList list = new NamedObjects<CadLayerTable>("layer") { Layer("A") };
        foreach (object? wrong in new object?[] { "A", new CadStyleTableObject(), null })
        {
            Action[] puts = [() => list.Add(wrong), () => list.Insert(0, wrong), () => list[0] = wrong];
            foreach (Action put in puts)
            {
                string message = Assert.Throws<DataMissmatchError>(put).Message;
                Assert.Contains("layer", message, StringComparison.Ordinal);
                Assert.Contains(wrong?.GetType().Name ?? "nothing", message, StringComparison.Ordinal);
            }
        }

        Assert.Single(list);
    }

    [Fact]
    public void Dictionaries_keep_each_object_under_its_own_name()
    {
        var items = new NamedObjects<CadLayerTable>("layer");
        IDictionary entries = new NamedEntries<CadLayerTable>(items);
        (CadLayerTable a, CadLayerTable b) = (Layer("A"), Layer("B"));
        entries.Add("a", a); // upper and lower case are the same
        entries["B"] = b;
        Assert.Equal((2, a, b), (entries.Count, entries["A"], entries["b"]));
        CadLayerTable other = Layer("a");
        entries["A"] = other; // in the place of the old one
        Assert.Equal([other, b], entries.Values.Cast<object>());
        Assert.Equal(["a", "B"], entries.Keys.Cast<string>());
        Assert.Equal(["a", "B"], entries.Cast<DictionaryEntry>().Select(entry => (string)entry.Key));
        Assert.Contains("'A'", Assert.Throws<DataMissmatchError>(() => entries.Add("A", Layer("A"))).Message);
        Assert.Contains("'B'", Assert.Throws<DataMissmatchError>(() => entries["C"] = b).Message);
        Assert.Throws<DataMissmatchError>(() => entries.Add("D", 5));
        Assert.Null(entries["C"]);
        Assert.Null(entries[5]);
        object[] copy = new object[2];
        entries.CopyTo(copy, 0);
        Assert.Equal([other, b], copy);
        entries.Remove("C");
        entries.Remove("A");
        Assert.True(!entries.Contains("A") && entries.Contains("B") && items.Count == 1);
        entries.Clear();
        Assert.True(entries is { Count: 0, IsReadOnly: false, IsFixedSize: false });
    }

    [Fact]
    public void Dictionaries_of_objects_hold_handles_by_name()
    {
        var dictionary = new CadDictionary();
        dictionary.Set("ONE", "2A");
        dictionary.Set("TWO", "00ff");
        dictionary.Set("one", "2B"); // the same name
        Assert.Equal((2, "2B", "FF", ""), (dictionary.Count, dictionary.GetHandle("One"), dictionary.GetHandle("TWO"),
            dictionary.GetHandle("THREE")));
        dictionary.Rename(0xFF, "THREE");
        dictionary.Rename(0xAB, "FOUR"); // nothing has this handle
        dictionary.Rename(0, "FIVE");
        Assert.Equal(["ONE", "THREE"], dictionary.Names);
        dictionary.RemoveHandle(0xAB);
        dictionary.RemoveHandle(0);
        Assert.False(dictionary.Remove("TWO"));
        dictionary.RemoveHandle(0x2B);
        Assert.True(dictionary.Remove("three") && dictionary.Count == 0);
        Assert.ThrowsAny<Exception>(() => dictionary.Set("X", "layer"));
    }

    [Theory]
    [InlineData("ONE", "hard", 360)]
    [InlineData("TWO", "soft", 350)]
    public void Entries_come_back_from_files_with_their_kind_of_owner(string name, string kind, int code)
    {
        CadImage drawing = new();
        var dictionary = new CadDictionary { HardOwnerFlag = (short)(kind == "hard" ? 1 : 0), HandleCode = code };
        (dictionary.DuplicateRecordCloning, dictionary.ObjectHandle) = (3, "ABC");
        dictionary.Set(name, "ABC");
        drawing.Objects.Add(dictionary);
        string text = DxfText.Save(drawing);
        Assert.Contains($"\n{name}\n{code}\nABC\n", text.Replace("\r", "").Replace("\n  3\n", "\n3\n")
            .Replace("\n ", "\n"), StringComparison.Ordinal);
        CadDictionary again = DxfText.Reload(drawing).Objects.OfType<CadDictionary>()
            .Single(one => one.ObjectHandle == "ABC");
        Assert.Equal((dictionary.HardOwnerFlag, (short)3, code),
            (again.HardOwnerFlag, again.DuplicateRecordCloning, again.HandleCode));
        Assert.Equal("ABC", again.GetHandle(name));
    }

    [Fact]
    public void Each_type_of_entity_and_of_object_has_a_name_of_its_own()
    {
        foreach (Type type in PropertyRoundTripTests.Concrete(typeof(CadEntityBase)))
        {
            var entity = (CadEntityBase)Activator.CreateInstance(type)!;
            bool isBlock = entity is CadBlockEntity or CadEndBlock; // the ends of a definition
            Assert.True(entity.TypeName != CadEntityTypeName.None || isBlock, entity.TypeNameText);
        }

        foreach (Type type in PropertyRoundTripTests.Concrete(typeof(CadObjectBase)))
        {
            var item = (CadObjectBase)Activator.CreateInstance(type)!;
            Assert.True(item.TypeName != CadObjectTypeName.None, item.TypeNameText);
        }

        // Objects of a file are told apart by the same names, with a class of their own or without.
        string[] names = ["MATERIAL", "VISUALSTYLE", "SCALE", "TABLESTYLE", "FIELD", "DIMASSOC", "GEODATA", "SUN",
            "ACDBPLACEHOLDER", "PDFDEFINITION", "VBA_PROJECT", "SORTENTSTABLE", "LAYER_FILTER", "SPATIAL_INDEX"];
        string objects = string.Concat(names.Select((name, i) => DxfText.Tags(0, name, 5, $"F0{i:X}")));
        CadImage drawing = DxfText.Load(DxfText.Header("AC1015") + DxfText.Entities()
            + DxfText.Tags(0, "SECTION", 2, "OBJECTS") + objects
            + DxfText.Tags(0, "UNHEARD_OF", 0, "ENDSEC", 0, "EOF"));
        List<CadObjectTypeName> found = [.. drawing.Objects.Where(item => names.Contains(item.TypeNameText))
            .Select(item => item.TypeName)];
        Assert.Equal(names.Length, found.Distinct().Count());
        Assert.DoesNotContain(CadObjectTypeName.None, found);
        CadObjectBase unknown = drawing.Objects.Single(item => item.TypeNameText == "UNHEARD_OF");
        Assert.Equal(CadObjectTypeName.None, unknown.TypeName);
        Assert.True(drawing.UnknownObjectCount > 0);
    }

    private static CadLayerTable Layer(string name) => new() { Name = name };
}
