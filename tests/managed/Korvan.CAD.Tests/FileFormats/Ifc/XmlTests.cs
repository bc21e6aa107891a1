using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc2x3.Entities;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Models in XML: elements become instances, and what is saved is a file of records.</summary>
public class XmlTests
{
    private const string Header =
        "<?xml version='1.0'?>\n<ex:iso_10303_28 version='2.0' "
        + "xmlns:ex='urn:iso.org:standard:10303:part(28):version(2):xmlschema:common'>\n"
        + "<ex:iso_10303_28_header><ex:name>Zo\u00EB</ex:name></ex:iso_10303_28_header>\n"
        + "<uos xmlns='http://www.iai-tech.org/ifcXML/IFC2x3/FINAL'>\n";

    private const string Tail = "</uos></ex:iso_10303_28>\n";

    [Fact]
    public void Elements_become_records()
    {
        IfcImage image = Load("""
            <IfcPropertySet id="i3"><GlobalId>x</GlobalId><OwnerHistory><IfcOwnerHistory ref="own"/></OwnerHistory>
              <HasProperties><IfcPropertySingleValue pos="1" id="i4"><Name>b &amp; c</Name>
                <NominalValue><IfcLogical>unknown</IfcLogical></NominalValue></IfcPropertySingleValue>
              <IfcPropertySingleValue pos="0"><Name>a'</Name></IfcPropertySingleValue></HasProperties></IfcPropertySet>
            <IfcOwnerHistory id="own"><ChangeAction>nochange</ChangeAction>
              <CreationDate>12</CreationDate></IfcOwnerHistory>
            <IfcSIUnit id="i5"><UnitType>lengthunit</UnitType><Name>metre</Name></IfcSIUnit>
            <IfcCartesianPoint id="i6"><Coordinates><IfcLengthMeasure>1e3</IfcLengthMeasure>
              <IfcLengthMeasure>-2</IfcLengthMeasure></Coordinates></IfcCartesianPoint>

            """);
        Assert.Equal("Zo\u00EB", image.Header.FileName.Name);
        var set = (IfcPropertySet2X3)image.GetEntity(3)!;
        Assert.Equal(12, set.OwnerHistory!.CreationDate);
        Assert.Equal(["a'", "b & c"], set.HasProperties!.Cast<IfcPropertySingleValue2X3>().Select(one => one.Name));
        using MemoryStream stream = new();
        image.Save(stream, new IfcOptions());
        string saved = Encoding.ASCII.GetString(stream.ToArray());
        foreach (string record in new[]
        {
            "#4=IFCPROPERTYSINGLEVALUE('b & c',$,IFCLOGICAL(.U.),$);", "#5=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);",
            "#6=IFCCARTESIANPOINT((1000.,-2.));",
        })
        {
            Assert.Contains(record, saved, StringComparison.Ordinal);
        }

        Assert.Throws<IfcImageException>(() => image.Save(stream));
    }

    [Theory]
    [InlineData("<IfcWall id='i1'><Colour>red</Colour></IfcWall>\n", "line 5: IfcWall has no attribute Colour")]
    [InlineData("\n<IfcAlien/>\n", "line 6: the schema has no entity IfcAlien")]
    [InlineData(
        "<IfcCircle id='i1'><Radius>wide</Radius></IfcCircle>", "line 5: 'wide' is no IfcPositiveLengthMeasure")]
    [InlineData("<IfcCircle id='i1'><Position/></IfcCircle>", "line 5: Position holds no element")]
    [InlineData(
        "<IfcCircle id='i1'><Position><IfcAxis2Placement2D ref='i9'/></Position></IfcCircle>", "#1: it refers to #9")]
    [InlineData("<IfcWall id='i1'>", "line 5")]
    public void Damage_is_named_with_its_line(string elements, string message)
    {
        ImageLoadException failure = Assert.Throws<ImageLoadException>(() => Load(elements));
        Assert.Contains(message, failure.Message, StringComparison.Ordinal);
    }

    [Fact]
    public void Damaged_elements_can_be_left_out()
    {
        LoadOptions options = new() { IgnoreErrors = true };
        IfcImage image = Load(
            "<IfcWall id='i1'><Colour/></IfcWall><IfcWall id='i2'><GlobalId>x</GlobalId></IfcWall>", options);
        Assert.Equal(2, Assert.Single(image.Entities).InstanceId);
        Assert.Single(options.Errors);
    }

    [Fact]
    public void Entities_of_xml_and_absurd_depths_are_refused()
    {
        string bomb = ("<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'>]>" + Header + Tail)
            .Replace("<?xml version='1.0'?>\n", "", StringComparison.Ordinal);
        Assert.Contains("DTD", Refusal(bomb), StringComparison.Ordinal);
        string deep = string.Concat(Enumerable.Repeat("<IfcLocalPlacement><PlacementRelTo>", 5000))
            + string.Concat(Enumerable.Repeat("</PlacementRelTo></IfcLocalPlacement>", 5000));
        Assert.Contains("nested deeper", Refusal(Header + deep + Tail), StringComparison.Ordinal);
    }

    private static string Refusal(string text) =>
        Assert.Throws<ImageLoadException>(() => Image.Load(new MemoryStream(Encoding.UTF8.GetBytes(text)))).Message;

    private static IfcImage Load(string elements, LoadOptions? options = null) =>
        (IfcImage)Image.Load(new MemoryStream(Encoding.UTF8.GetBytes(Header + elements + Tail)), "x.ifcxml",
            options ?? new LoadOptions());
}
