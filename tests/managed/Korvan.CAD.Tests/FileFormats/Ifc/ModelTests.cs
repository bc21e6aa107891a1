using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Entities;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Types;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Instances, their referrers, changes, and saved files.</summary>
public class ModelTests
{
    private const string Placements =
        "#1=IFCLOCALPLACEMENT($,#9);\n#2=IFCLOCALPLACEMENT(#1,#9);\n#3=IFCLOCALPLACEMENT(#1,#9);\n"
        + "#9=IFCAXIS2PLACEMENT3D(#10,$,$);\n#10=IFCCARTESIANPOINT((0.,0.,0.));\n";

    public static TheoryData<string> RealModels
    {
        get
        {
            TheoryData<string> names = [];
            string? root = SharedDrawings.Root;
            IEnumerable<string> files = root is null
                ? []
                : Directory.EnumerateFiles(Path.Combine(root, "ifc"), "*.ifc*");
            foreach (string file in files.Where(file => !file.EndsWith("xml", StringComparison.Ordinal)).Order())
            {
                names.Add(Path.GetFileName(file));
            }

            return names;
        }
    }

    [DrawingTheory]
    [MemberData(nameof(RealModels))]
    public void Real_models_survive_being_written_anew(string name)
    {
        IfcImage image = (IfcImage)Image.Load(Path.Combine(SharedDrawings.Root!, "ifc", name));
        string[] before = [.. image.Entities.Select(Describe)];
        Assert.NotEmpty(before);
        foreach (IIfcEntity entity in image.Entities)
        {
            // Each attribute is set to its own value, so that every record is encoded again.
            for (int i = 0; i < entity.AttributeNames.Count; i++)
            {
                if (entity.GetAttribute(i) is { } value)
                {
                    entity.SetAttribute(i, value);
                }
            }
        }

        using MemoryStream stream = new();
        image.Save(stream);
        stream.Position = 0;
        IfcImage again = (IfcImage)Image.Load(stream);
        Assert.Equal(before, again.Entities.Select(Describe));
    }

    [Fact]
    public void Instances_are_made_once_and_referrers_follow_changes()
    {
        IfcImage image = IfcText.Load(Placements);
        var root = (IfcLocalPlacement4)image.GetEntity(1)!;
        var second = (IfcLocalPlacement4)image.GetEntity(2)!;
        Assert.Same(root, second.PlacementRelTo);
        Assert.Same(second, image.Entities[1]);
        Assert.Equal([2L, 3L], root.ReferencedByPlacements.Select(one => one.InstanceId));

        second.PlacementRelTo = (IfcLocalPlacement4)image.GetEntity(3)!;
        Assert.Equal([3L], root.ReferencedByPlacements.Select(one => one.InstanceId));
        Assert.Equal([2L], image.GetEntity(3)!.GetInverse("ReferencedByPlacements").Select(one => one.InstanceId));
        second.PlacementRelTo = null;
        Assert.Empty(image.GetEntity(3)!.Referrers);
        Assert.Equal([1L, 2L, 3L], image.GetEntity(9)!.Referrers.Select(one => one.InstanceId));
    }

    [Fact]
    public void What_was_removed_is_gone_and_may_come_back_with_a_new_number()
    {
        IfcImage image = IfcText.Load(Placements);
        IIfcEntity third = image.GetEntity(3)!;
        image.RemoveEntity(third);
        Assert.Null(image.GetEntity(3));
        Assert.Equal([2L], image.GetEntity(1)!.GetInverse("ReferencedByPlacements").Select(one => one.InstanceId));
        Assert.Throws<IfcImageException>(() => image.RemoveEntity(third));
        image.AddEntity(third);
        Assert.Equal(11, third.InstanceId);
        Assert.Equal(
            IfcText.File(Placements.Replace("#3=IFCLOCALPLACEMENT(#1,#9);", "", StringComparison.Ordinal)
                + "#11=IFCLOCALPLACEMENT(#1,#9);\n"), IfcText.Saved(image));
    }

    [Fact]
    public void Entities_of_other_models_and_schemas_are_refused()
    {
        IfcImage image = IfcText.Load(Placements);
        var placement = (IfcLocalPlacement4)image.GetEntity(2)!;
        var foreign = (IfcLocalPlacement4)IfcText.Load(Placements).GetEntity(1)!;
        Assert.Throws<IfcImageException>(() => placement.PlacementRelTo = foreign);
        Assert.Throws<IfcImageException>(() => image.AddEntity(foreign));
        IfcLocalPlacement4 free = new() { PlacementRelTo = foreign };
        Assert.Throws<IfcImageException>(() => image.AddEntity(free));
        Assert.Throws<IfcImageException>(() => placement.PlacementRelTo = free);
        Assert.Equal((1L, 5), (placement.PlacementRelTo!.InstanceId, image.Entities.Count));
        Assert.Throws<IfcImageException>(() => image.AddEntity(new CAD.FileFormats.Ifc.Ifc2x3.Entities.IfcWall2X3()));
        Assert.Throws<IfcImageException>(
            () => new IfcValue4(new CAD.FileFormats.Ifc.Ifc2x3.Types.IfcLabel2X3("x")));
    }

    [Fact]
    public void Derived_and_unknown_values_keep_their_meaning()
    {
        IfcImage image = IfcText.Load(
            "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
            + "#2=IFCBSPLINECURVEWITHKNOTS(1,(#3,#3),.UNSPECIFIED.,.U.,.F.,"
            + "(2,2),(0.,1.),.UNSPECIFIED.);\n#3=IFCCARTESIANPOINT((0.,0.));\n"
            + "#4=IFCUNITASSIGNMENT((#1));\n");
        var unit = (IfcSIUnit4)image.GetEntity(1)!;
        Assert.Null(unit.Dimensions);
        Assert.Throws<IfcImageException>(() => unit.Dimensions = null);
        Assert.Equal(ImageOptions.UnitType.Millimeter, image.UnitType);
        unit.Prefix = IfcSIPrefix4.CENTI;
        var curve = (IfcBSplineCurveWithKnots4)image.GetEntity(2)!;
        Assert.Equal((null, false), (curve.ClosedCurve, curve.SelfIntersect));
        curve.ClosedCurve = true;
        curve.SelfIntersect = null;
        string saved = IfcText.Saved(image);
        Assert.Contains("#1=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);", saved, StringComparison.Ordinal);
        Assert.Contains(",.UNSPECIFIED.,.T.,.U.,(2,2),", saved, StringComparison.Ordinal);
    }

    [Fact]
    public void A_header_is_written_back_with_its_changes_alone()
    {
        IfcImage image = IfcText.Load(Placements);
        image.Header.FileName.Author[0] = "Zoë";
        string expected = IfcText.File(Placements)
            .Replace("FILE_NAME('','',('')", "FILE_NAME('','',('Zo\\X2\\00EB\\X0\\')", StringComparison.Ordinal);
        Assert.Equal(expected, IfcText.Saved(image));
    }

    [Fact]
    public void Finding_one_of_many_costs_what_it_returns()
    {
        StringBuilder records = new();
        for (int i = 1; i <= 60_000; i++)
        {
            records.Append($"#{i}=IFCWALL('{i:D22}',$,$,$,$,$,$,$,$);\n");
        }

        IfcImage image = IfcText.Load(records.ToString());
        long before = GC.GetAllocatedBytesForCurrentThread();
        Assert.Equal(59_999, image.GetEntityByGlobalId($"{59_999:D22}")!.InstanceId);
        Assert.True(GC.GetAllocatedBytesForCurrentThread() - before < 1_000_000, "no table for one search");
        for (int i = 1; i <= 60_000; i += 7)
        {
            Assert.Equal(i, image.GetEntityByGlobalId($"{i:D22}")!.InstanceId);
        }
    }

    [Theory]
    [InlineData(
        "#1=IFCWALL('x',$,$,$,$,$,$,$,$);\nENDSEC;\nDATA;\n#1=IFCDOOR('x',$,$,$,$,$,$,$,$,$,$,$,$);\n",
        "used again in line 11")]
    [InlineData("#1=IFCWALL('x',$,$,$,$,$,$,$,$);", null)]
    [InlineData("#1=IFCWALL('x',$,$,$,$,$,$,$,$)\n#2=IFCDIRECTION((1.,0.));\n", "line 9, #1: a ';' is missing")]
    [InlineData("#1=IFCWALL('x' $,$,$,$,$,$,$,$);\n", "a ',' or ')' is missing")]
    [InlineData("#0=IFCDIRECTION((1.,0.));\n", "no number above 0")]
    [InlineData("#=IFCDIRECTION((1.,0.));\n", "no number above 0")]
    [InlineData("#9223372036854775807=IFCDIRECTION((1.,0.));\n", "out of range")]
    [InlineData("#900000000000000000=IFCDIRECTION((1.,0.));\n", null)]
    [InlineData("/* no end\n#1=IFCDIRECTION((1.,0.));\n", "comment has no end")]
    [InlineData("&SCOPE\n", "a record or 'ENDSEC;' was expected")]
    public void Unusual_records_are_read_or_refused_with_a_reason(string records, string? message)
    {
        Exception? failure = Record.Exception(() => IfcText.Load(records));
        if (message is null)
        {
            Assert.Null(failure);
            return;
        }

        Assert.Contains(message, Assert.IsType<ImageLoadException>(failure).Message, StringComparison.Ordinal);
    }

    [Fact]
    public void Errors_without_number_are_counted_and_not_kept()
    {
        StringBuilder records = new();
        for (int i = 0; i < 300_000; i++)
        {
            records.Append("#1=IFCLOCALPLACEMENT(#7,#8);\n");
        }

        LoadOptions options = new() { IgnoreErrors = true };
        IfcImage image = IfcText.Load(records.ToString(), options);
        Assert.Equal(300_000, image.Entities.Count);
        Assert.Equal(10_001, options.Errors.Count);
        Assert.Equal("'test.ifc', line 8, #1: its number is used again in line 300007.", options.Errors[0]);
        Assert.Equal("'test.ifc': there are 889999 more errors.", options.Errors[^1]);
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void Changed_bytes_are_read_or_refused(int seed)
    {
        byte[] source = Encoding.Latin1.GetBytes(IfcText.File(
            Placements + "#20=IFCPROPERTYSINGLEVALUE('a',$,IFCLABEL('b\\X2\\00C4\\X0\\'),$);\n"
            + "#21=IFCINDEXEDPOLYCURVE(#22,(IFCLINEINDEX((1,2)),IFCARCINDEX((2,3,4))),.F.);\n"
            + "#22=IFCCARTESIANPOINTLIST2D(((0.,0.),(1.,0.),(1.,1.),(0.,1.)),$);\n"));
        Random random = new(seed);
        byte[] marks = "()',;#$*.\\\"/=0A\n"u8.ToArray();
        for (int round = 0; round < 1500; round++)
        {
            byte[] data = [.. source];
            for (int i = random.Next(1, 4); i > 0; i--)
            {
                data[random.Next(data.Length)] = marks[random.Next(marks.Length)];
            }

            foreach (bool ignoresErrors in new[] { false, true })
            {
                Exception? failure = Record.Exception(() => Use(data, ignoresErrors));
                Assert.True(
                    failure is null or ImageLoadException or IfcImageException,
                    $"seed {seed}, round {round}, ignoresErrors {ignoresErrors}: {failure}");
            }
        }
    }

    private static void Use(byte[] data, bool ignoresErrors)
    {
        LoadOptions options = new() { IgnoreErrors = ignoresErrors };
        using Image image = Image.Load(new MemoryStream(data), "x.ifc", options);
        if (image is IfcImage model)
        {
            foreach (IIfcEntity entity in model.Entities)
            {
                _ = Describe(entity);
                _ = entity.Referrers.Count;
            }

            model.Save(new MemoryStream());
        }
    }

    // The instance with all of its values, so that files can be compared regardless of their spelling.
    private static string Describe(IIfcEntity entity)
    {
        StringBuilder text = new();
        text.Append('#').Append(entity.InstanceId).Append(entity.EntityName);
        for (int i = 0; i < entity.AttributeNames.Count; i++)
        {
            Describe(entity.GetAttribute(i), text.Append('|'));
        }

        return text.ToString();
    }

    private static void Describe(object? value, StringBuilder text)
    {
        switch (value)
        {
            case IIfcEntity entity:
                text.Append('#').Append(entity.InstanceId);
                break;
            case IfcSelect select:
                Describe(select.Value, text.Append(select.TypeName).Append(':'));
                break;
            case IfcCollection items:
                text.Append('(');
                foreach (object? item in items)
                {
                    Describe(item, text.Append(','));
                }

                text.Append(')');
                break;
            case byte[] bytes:
                text.Append(Convert.ToHexString(bytes));
                break;
            default:
                text.Append(FormattableString.Invariant($"{value}"));
                break;
        }
    }
}
