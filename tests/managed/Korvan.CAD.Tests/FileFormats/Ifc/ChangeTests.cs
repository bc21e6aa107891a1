using System;
using System.Collections;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Entities;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Types;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Changes of lists and of models: their effects, and that refused ones have none.</summary>
public class ChangeTests
{
    private const string Set = "#1=IFCPROPERTYSINGLEVALUE('a',$,$,$);\n#2=IFCPROPERTYSINGLEVALUE('b',$,$,$);\n"
        + "#3=IFCPROPERTYSINGLEVALUE('c',$,$,$);\n#4=IFCPROPERTYSET('0000000000000000000004',$,'s',$,(#1,#2));\n"
        + "#5=IFCPROPERTYSET('0000000000000000000005',$,'t',$,(#2,#3,#2));\n";

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    public void Lists_do_what_lists_do(int seed)
    {
        Random random = new(seed);
        IfcImage image = IfcText.Load("#1=IFCDIRECTION((1.,0.,4.));\n");
        IList list = ((IfcDirection4)image.GetEntity(1)!).DirectionRatios!;
        List<double> expected = [1, 0, 4];
        for (int round = 0; round < 400; round++)
        {
            double value = random.Next(6);
            int at = random.Next(-1, expected.Count + 2);
            switch (random.Next(9))
            {
                case 0:
                    Assert.Equal(expected.Count, list.Add(value));
                    expected.Add(value);
                    break;
                case 1:
                    Same(() => list.Insert(at, value), () => expected.Insert(at, value));
                    break;
                case 2:
                    Same(() => list[at] = value, () => expected[at] = value);
                    break;
                case 3:
                    Same(() => list.RemoveAt(at), () => expected.RemoveAt(at));
                    break;
                case 4:
                    list.Remove(value);
                    expected.Remove(value);
                    break;
                case 5:
                    Assert.Equal(expected.IndexOf(value), list.IndexOf(value));
                    Assert.Equal(expected.Contains(value), list.Contains((int)value));
                    break;
                case 6 when round % 50 == 0:
                    list.Clear();
                    expected.Clear();
                    break;
                case 7:
                    object[] copy = new object[expected.Count + 1];
                    list.CopyTo(copy, 1);
                    Assert.Equal(expected, copy.Skip(1).Cast<double>());
                    break;
                default:
                    Same(() => _ = list[at], () => _ = expected[at]);
                    Assert.Throws<IfcImageException>(() => list.Add("x"));
                    break;
            }

            Assert.Equal(expected, list.Cast<double>());
        }

        IfcImage again = IfcText.LoadFile(IfcText.Saved(image));
        Assert.Equal(expected, ((IfcDirection4)again.GetEntity(1)!).DirectionRatios!.Cast<double>());
    }

    public static TheoryData<string> Refused =>
        [
            "insert beyond", "replace beyond", "foreign in list", "foreign behind new", "add with foreign",
            "wrong type behind new",
        ];

    [Theory]
    [MemberData(nameof(Refused))]
    public void What_is_refused_leaves_the_model_as_it_was(string what)
    {
        IfcImage image = IfcText.Load(Set);
        var set = (IfcPropertySet4)image.GetEntity(4)!;
        var foreign = (IfcProperty4)IfcText.Load(Set).GetEntity(1)!;
        IfcPropertySingleValue4 free = new() { Name = "new" };
        IfcComplexProperty4 leading = new()
        {
            Name = "leads elsewhere", UsageName = "u", HasProperties = new[] { foreign },
        };
        string before = IfcText.Saved(image);
        Action change = what switch
        {
            "insert beyond" => () => set.HasProperties!.Insert(3, free),
            "replace beyond" => () => set.HasProperties![2] = free,
            "foreign in list" => () => set.HasProperties!.Add(foreign),
            "foreign behind new" => () => set.HasProperties = new IfcProperty4[] { free, leading },
            "add with foreign" => () => image.AddEntity(leading),
            _ => () => set.SetAttribute("HasProperties", new object[] { free, new IfcWall4() }),
        };
        Assert.ThrowsAny<Exception>(change);
        Assert.Equal((5, 0L), (image.Entities.Count, free.InstanceId));
        Assert.Equal(before, IfcText.Saved(image));
        Assert.Empty(free.Referrers);
        set.HasProperties!.Add(free);
        Assert.Equal((6, 6L), (image.Entities.Count, free.InstanceId));
    }

    [Fact]
    public void Referrers_are_those_that_a_walk_over_all_attributes_finds()
    {
        Random random = new(4);
        IfcImage image = IfcText.Load(Set);
        for (int round = 0; round < 300; round++)
        {
            List<IfcPropertySet4> sets = [.. image.GetEntitiesOfType("IfcPropertySet").Cast<IfcPropertySet4>()];
            List<IfcProperty4> properties = [.. image.GetEntitiesOfType("IfcProperty").Cast<IfcProperty4>()];
            IList list = sets[random.Next(sets.Count)].HasProperties!;
            IfcProperty4 property = properties[random.Next(properties.Count)];
            switch (random.Next(7))
            {
                case 0:
                    list.Add(property);
                    break;
                case 1 when list.Count > 0:
                    list.RemoveAt(random.Next(list.Count));
                    break;
                case 2 when list.Count > 0:
                    list[random.Next(list.Count)] = property;
                    break;
                case 3:
                    list.Insert(0, new IfcPropertySingleValue4 { Name = $"new {round}" });
                    break;
                case 4 when properties.Count > 2 && property.Referrers.Count == 0:
                    image.RemoveEntity(property);
                    break;
                case 5:
                    sets[0].HasProperties = new[] { property };
                    break;
                case 6 when sets.Count < 6:
                    image.AddEntity(
                        new IfcPropertySet4 { GlobalId = $"{round:D22}", HasProperties = new[] { property } });
                    break;
            }

            AssertReferrers(image);
        }

        IfcImage again = IfcText.LoadFile(IfcText.Saved(image));
        Assert.Equal(image.Entities.Select(one => one.ToString()), again.Entities.Select(one => one.ToString()));
        AssertReferrers(again);
    }

    [Fact]
    public void What_refers_to_itself_alone_can_be_removed()
    {
        IfcImage image = IfcText.Load(
            "#1=IFCLOCALPLACEMENT(#1,#2);\n#2=IFCAXIS2PLACEMENT3D(#3,$,$);\n#3=IFCCARTESIANPOINT((0.,0.,0.));\n");
        IIfcEntity own = image.GetEntity(1)!;
        Assert.Same(own, Assert.Single(own.Referrers));
        image.RemoveEntity(own);
        Assert.Equal([2L, 3L], image.Entities.Select(one => one.InstanceId));
        Assert.DoesNotContain("#1=", IfcText.Saved(image), StringComparison.Ordinal);
        image.AddEntity(own);
        Assert.Equal("#4=IFCLOCALPLACEMENT(#4,#2);", own.ToString());
    }

    [Fact]
    public void What_holds_values_of_other_types_is_removed_as_any_other()
    {
        IfcImage image = IfcText.Load("#1=IFCWALL(5.,#2,'n',$,$,$,$,$,.ROUND.);\n#2=IFCDIRECTION((1.,0.));\n");
        IIfcEntity wall = image.GetEntity(1)!;
        image.RemoveEntity(wall);
        Assert.Null(image.GetEntity(1));
        Assert.Equal((0L, "n"), (wall.InstanceId, wall.GetAttribute("Name")));
        Assert.Null(wall.GetAttribute("PredefinedType"));
        image.RemoveEntity(image.GetEntity(2)!);
        Assert.Empty(image.Entities);
    }

    [Fact]
    public void Global_identifiers_follow_changes()
    {
        IfcImage image = IfcText.Load(Set);
        string[] ids = ["0000000000000000000004", "0000000000000000000005", "0000000000000000000006"];
        var set = (IfcPropertySet4)image.GetEntity(4)!;
        for (int round = 0; round < 12; round++)
        {
            // More searches than are done without an index, each after a change.
            set.GlobalId = ids[round % 2 * 2];
            Assert.Same(set, image.GetEntityByGlobalId(set.GlobalId));
            Assert.Null(image.GetEntityByGlobalId(ids[2 - (round % 2 * 2)]));
            Assert.Equal(5, image.GetEntityByGlobalId(ids[1])!.InstanceId);
        }

        image.RemoveEntity(set);
        Assert.Null(image.GetEntityByGlobalId(ids[2]));
        image.AddEntity(set);
        Assert.Equal(6, image.GetEntityByGlobalId(ids[2])!.InstanceId);
        Assert.Null(image.GetEntityByGlobalId("a"));
        Assert.Null(image.GetEntityByGlobalId(string.Empty));
    }

    [Theory]
    [InlineData(0)]
    [InlineData(-1)]
    [InlineData(6)]
    [InlineData(long.MaxValue)]
    [InlineData(long.MinValue)]
    public void Numbers_that_no_instance_has_find_nothing(long id)
    {
        Assert.Null(IfcText.Load(Set).GetEntity(id));
        Assert.Null(IfcText.Load("#900000000000000000=IFCDIRECTION((1.,0.));\n").GetEntity(id));
    }

    [Fact]
    public void Damage_is_repaired_by_setting_what_is_wrong()
    {
        IfcImage image = IfcText.Load("#1=IFCWALL(5.,$,(1.),$,$,$,$,$,.ROUND.);\n#2=IFCDIRECTION(7.);\n");
        var wall = (IfcWall4)image.GetEntity(1)!;
        string before = IfcText.Saved(image);
        foreach (string name in new[] { "GlobalId", "Name", "PredefinedType" })
        {
            Assert.Throws<IfcImageException>(() => wall.GetAttribute(name));
        }

        Assert.Equal(before, IfcText.Saved(image));
        wall.Name = "n";
        Assert.Equal("#1=IFCWALL(5.,$,'n',$,$,$,$,$,.ROUND.);", wall.ToString());
        (wall.GlobalId, wall.PredefinedType) = ("g", IfcWallTypeEnum4.SHEAR);
        ((IfcDirection4)image.GetEntity(2)!).DirectionRatios = new[] { 1.0, 0 };
        Assert.Contains(
            "#1=IFCWALL('g',$,'n',$,$,$,$,$,.SHEAR.);\n#2=IFCDIRECTION((1.,0.));", IfcText.Saved(image),
            StringComparison.Ordinal);
    }

    private static void Same(Action actual, Action expected)
    {
        bool fails = Record.Exception(expected) is not null;
        Assert.Equal(fails, Record.Exception(actual) is ArgumentOutOfRangeException);
    }

    private static void AssertReferrers(IfcImage image)
    {
        foreach (IIfcEntity target in image.Entities)
        {
            long[] walked = [.. image.GetEntitiesOfType("IfcPropertySet")
                .Where(set => ((IList)set.GetAttribute("HasProperties")!).Contains(target))
                .Select(set => set.InstanceId)];
            Assert.Equal(walked, target.Referrers.Select(one => one.InstanceId));
            if (target is IfcProperty4)
            {
                Assert.Equal(walked, target.GetInverse("PartOfPset").Select(one => one.InstanceId));
            }
        }
    }
}
