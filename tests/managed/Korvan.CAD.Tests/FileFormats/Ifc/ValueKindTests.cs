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

/// <summary>Each kind of value: reading, refusal and encoding.</summary>
public class ValueKindTests
{
    private const string Others = "#20=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.)));\n"
        + "#21=IFCCARTESIANPOINT((0.,0.,0.));\n#22=IFCPERSON($,'P',$,$,$,$,$,$);\n";

    // The encoded record has one defined spelling, which other programs read.
    [Theory]
    [InlineData("IFCORGANIZATION('a''b','\\\\','\\X2\\00C400E4\\X0\\',$,$)", null)]
    [InlineData("IFCORGANIZATION($,'\\X4\\0001F600\\X0\\','',$,$)", null)]
    [InlineData(
        "IFCORGANIZATION($,'\\S\\D\\X\\E4','\\PE\\\\S\\0',$,$)",
        "IFCORGANIZATION($,'\\X2\\00C400E4\\X0\\','\\X2\\0410\\X0\\',$,$)")]
    [InlineData("IFCORGANIZATION($,'C:\\Temp',$,$,$)", "IFCORGANIZATION($,'C:\\\\Temp',$,$,$)")]
    [InlineData("IFCCARTESIANPOINT((-0.5,1.E21,12345.6789))", null)]
    [InlineData("IFCCARTESIANPOINT((1,+2.5,3.0e0))", "IFCCARTESIANPOINT((1.,2.5,3.))")]
    [InlineData(
        "IFCCARTESIANPOINT((1.7976931348623157E308,5.E-324,-0.))",
        "IFCCARTESIANPOINT((1.7976931348623157E308,5.E-324,-0.))")]
    [InlineData("IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,2.,3.)))", null)]
    [InlineData("IFCCARTESIANPOINTLIST3D(())", null)]
    [InlineData("IFCTRIANGULATEDFACESET(#20,$,.T.,((1,2,3),(3,2,1)),(1,2,3))", null)]
    [InlineData("IFCTRIANGULATEDFACESET(#20,((0.,0.,1.)),$,((9223372036854775807,-1,0)),$)", null)]
    [InlineData("IFCBLOBTEXTURE(.T.,.F.,'m',$,('a','b'),'PNG',\"0FFD8\")", null)]
    [InlineData("IFCPIXELTEXTURE(.T.,.F.,$,$,$,2,1,3,(\"0FF0000\",\"000FF00\"))", null)]
    [InlineData("IFCWALL('0000000000000000000001',$,'n',$,$,$,$,$,.PARTITIONING.)", null)]
    [InlineData("IFCWALL('0000000000000000000001',$,$,$,$,$,$,$,$)", null)]
    [InlineData("IFCBSPLINECURVEWITHKNOTS(1,(#21,#21),.UNSPECIFIED.,.U.,.F.,(2,2),(0.,1.),.UNSPECIFIED.)", null)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)", null)]
    [InlineData("IFCGEOMETRICREPRESENTATIONSUBCONTEXT('Body','Model',*,*,*,*,$,$,.MODEL_VIEW.,$)", null)]
    [InlineData(
        "IFCPROPERTYLISTVALUE('x',$,(IFCLABEL('a'),IFCREAL(1.5),IFCINTEGER(-3),IFCBOOLEAN(.T.),IFCLOGICAL(.U.),"
            + "IFCBINARY(\"0FF\")),$)",
        null)]
    [InlineData("IFCPROPERTYLISTVALUE('x',$,(IFCBINARY(\"1A\"),IFCBINARY(\"3123\"),IFCBINARY(\"0\")),$)", null)]
    [InlineData("IFCPROPERTYSINGLEVALUE('x',$,IFCCOMPLEXNUMBER((1.,-2.)),#23)", null)]
    [InlineData("IFCPROPERTYSINGLEVALUE('x',$,IFCCOMPOUNDPLANEANGLEMEASURE((50,30,15)),$)", null)]
    [InlineData("IFCPROPERTYSINGLEVALUE('x',$,IFCREAL(2),$)", "IFCPROPERTYSINGLEVALUE('x',$,IFCREAL(2.),$)")]
    [InlineData("IFCINDEXEDPOLYCURVE(#20,(IFCLINEINDEX((1,2)),IFCARCINDEX((1,2,3))),.F.)", null)]
    [InlineData("IFCORGANIZATION($,'o',$,(#24),$)", null)]
    public void Every_kind_of_value_is_written_as_it_was_read(string record, string? expected)
    {
        IfcImage image = IfcText.Load(
            Others + "#23=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n#24=IFCACTORROLE(.ARCHITECT.,$,$);\n"
                + $"#1={record};\n");
        IIfcEntity entity = image.GetEntity(1)!;
        List<string> before = Shown(entity);
        foreach (string name in entity.AttributeNames)
        {
            if (entity.GetAttribute(name) is { } value)
            {
                entity.SetAttribute(name, value);
            }
        }

        Assert.Equal($"#1={expected ?? record};", entity.ToString());
        IfcImage again = IfcText.LoadFile(IfcText.Saved(image));
        Assert.Equal(before, Shown(again.GetEntity(1)!));
        Assert.Equal(entity.ToString(), again.GetEntity(1)!.ToString());
    }

    [Theory]
    [InlineData("Name", 5, "IfcLabel was expected, not 5")]
    [InlineData("Name", true, "IfcLabel was expected")]
    [InlineData("Roles", "x", "was expected, not the string 'x'")]
    [InlineData("Roles", new object[] { "x" }, "IfcActorRole was expected")]
    [InlineData("Roles", new object?[] { null }, "IfcActorRole was expected, not None")]
    public void Values_of_other_types_are_refused_and_change_nothing(string attribute, object value, string message)
    {
        IfcImage image = IfcText.Load("#1=IFCORGANIZATION($,'o',$,(#2),$);\n#2=IFCACTORROLE(.ARCHITECT.,$,$);\n");
        string before = IfcText.Saved(image);
        IfcImageException failure = Assert.Throws<IfcImageException>(
            () => image.GetEntity(1)!.SetAttribute(attribute, value));
        Assert.Contains(
            "line 8, #1=IFCORGANIZATION: attribute " + attribute, failure.Message, StringComparison.Ordinal);
        Assert.Contains(message, failure.Message, StringComparison.Ordinal);
        Assert.Equal(before, IfcText.Saved(image));
        Assert.Single(image.GetEntity(2)!.Referrers);
    }

    [Theory]
    [InlineData(double.NaN)]
    [InlineData(double.PositiveInfinity)]
    [InlineData("1")]
    [InlineData(true)]
    [InlineData(null)]
    public void Numbers_are_finite_numbers(object? value)
    {
        IfcCartesianPoint4 point = new() { Coordinates = new[] { 1.0, 2 } };
        Assert.Throws<IfcImageException>(() => point.Coordinates!.Add(value));
        Assert.Throws<IfcImageException>(() => point.Coordinates![0] = value);
        Assert.Throws<IfcImageException>(() => point.SetAttribute(0, new[] { 1.0, value }));
        Assert.Equal([1.0, 2.0], point.Coordinates!.Cast<double>());
    }

    [Fact]
    public void Integers_of_all_sizes_are_admitted_if_in_range()
    {
        IfcPixelTexture4 texture = new();
        foreach (object width in new object[] { (byte)7, (short)7, 7, 7U, 7L })
        {
            texture.SetAttribute("Width", width);
            Assert.Equal(7L, texture.Width);
        }

        foreach (object width in new object[] { 7.0, 7.5F, "7", ulong.MaxValue })
        {
            Assert.Throws<IfcImageException>(() => texture.SetAttribute("Width", width));
        }
    }

    [Fact]
    public void Bits_beyond_whole_bytes_survive_changes_beside_them()
    {
        IfcImage image = IfcText.Load("#1=IFCPROPERTYLISTVALUE('x',$,(IFCBINARY(\"1A\"),IFCLABEL('b')),$);\n");
        var list = (IfcPropertyListValue4)image.GetEntity(1)!;
        Assert.Equal([0x0A], (byte[])((IfcSelect)list.ListValues![0]!).Value!);
        list.ListValues.Add(new IfcLabel4("c"));
        list.ListValues.RemoveAt(1);
        Assert.Equal("#1=IFCPROPERTYLISTVALUE('x',$,(IFCBINARY(\"1A\"),IFCLABEL('c')),$);", list.ToString());
    }

    [Fact]
    public void Bytes_and_lists_that_were_handed_over_are_copies()
    {
        byte[] bytes = [1, 2];
        IfcBlobTexture4 texture = new() { RasterCode = bytes };
        bytes[0] = 9;
        texture.RasterCode![1] = 9;
        Assert.Equal([1, 2], texture.RasterCode);
        IfcCartesianPoint4 first = new() { Coordinates = new[] { 1.0, 2 } };
        IfcCartesianPoint4 second = new() { Coordinates = first.Coordinates };
        second.Coordinates![0] = 7.0;
        Assert.Equal((1.0, 7.0), (first.Coordinates![0], second.Coordinates[0]));
    }

    [Fact]
    public void Inner_lists_are_live()
    {
        IfcImage image = IfcText.Load(Others);
        var points = (IfcCartesianPointList3D4)image.GetEntity(20)!;
        var inner = (IList)points.CoordList![1]!;
        inner[2] = 5;
        points.CoordList.RemoveAt(0);
        points.CoordList.Add(new[] { 7.0, 8, 9 });
        ((IList)points.CoordList[2]!).Clear();
        Assert.Equal("#20=IFCCARTESIANPOINTLIST3D(((1.,0.,5.),(0.,1.,0.),()));", points.ToString());
        Assert.Throws<IfcImageException>(() => points.CoordList.Add(1.0));
        Assert.Throws<IfcImageException>(() => points.CoordList.Add(new object[] { 1.0, "x" }));
        Assert.Equal(3, points.CoordList.Count);
    }

    [Fact]
    public void Lists_of_select_values_do_not_change()
    {
        IfcImage image = IfcText.Load("#1=IFCPROPERTYSINGLEVALUE('x',$,IFCCOMPLEXNUMBER((1.,-2.)),$);\n");
        var list = (IList)((IfcPropertySingleValue4)image.GetEntity(1)!).NominalValue!.Value!;
        Assert.True(list.IsReadOnly && list.IsFixedSize);
        foreach (Action change in new Action[]
        {
            () => list.Add(1.0), () => list[0] = 1.0, list.Clear, () => list.RemoveAt(0), () => list.Insert(0, 1.0),
        })
        {
            Assert.Throws<IfcImageException>(change);
        }

        Assert.Equal([1.0, -2.0], list.Cast<double>());
    }

    [Theory]
    [InlineData("#1=(IFCWALL('a',$)IFCDOOR(#2));\n")]
    [InlineData("#1=( IFCROOT() IFCNAMEDUNIT(*,.LENGTHUNIT.)\n IFCSIUNIT(.MILLI.,.METRE.) );\n")]
    public void Records_of_several_entities_are_kept_and_not_taken_apart(string record)
    {
        IfcImage image = IfcText.Load(record + "#2=IFCDIRECTION((1.,0.));\n");
        string text = IfcText.Saved(image);
        IIfcEntity complex = image.GetEntity(1)!;
        Assert.Equal("(several entities)", complex.EntityName);
        Assert.Empty(complex.AttributeNames);
        Assert.Throws<IfcImageException>(() => complex.SetAttribute(0, 1));
        Assert.False(complex.IsA("IfcRoot"));
        ((IfcDirection4)image.GetEntity(2)!).DirectionRatios![0] = 2.0;
        Assert.Equal(text.Replace("(1.,0.)", "(2.,0.)", StringComparison.Ordinal), IfcText.Saved(image));
        image.RemoveEntity(complex);
        Assert.Throws<IfcImageException>(() => image.AddEntity(complex));
        Assert.Single(image.Entities);
    }

    private static List<string> Shown(IIfcEntity entity) =>
        [.. Enumerable.Range(0, entity.AttributeNames.Count).Select(i => Shown(entity.GetAttribute(i)))];

    private static string Shown(object? value) => value switch
    {
        null => "nothing",
        IIfcEntity entity => $"#{entity.InstanceId}",
        IfcSelect select => $"{select.TypeName}:{Shown(select.Value)}",
        byte[] bytes => Convert.ToHexString(bytes),
        string text => $"'{text}'",
        IEnumerable items => $"({string.Join(',', items.Cast<object?>().Select(Shown))})",
        _ => FormattableString.Invariant($"{value.GetType().Name} {value}"),
    };
}
