using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Entities;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Types;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>The unit of lengths of a model, select values made by programs, typed attributes, and simple values of
/// XML.</summary>
public class UnitAndSelectTests
{
    [Theory]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)", UnitType.Meter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)", UnitType.Millimeter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.)", UnitType.Centimeter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.DECI.,.METRE.)", UnitType.Decimeter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.DECA.,.METRE.)", UnitType.Decameter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.HECTO.,.METRE.)", UnitType.Hectometer)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.)", UnitType.Kilometer)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.GIGA.,.METRE.)", UnitType.Gigameter)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.MICRO.,.METRE.)", UnitType.Micrometer)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.NANO.,.METRE.)", UnitType.Nanometer)]
    [InlineData("IFCSIUNIT(*,.LENGTHUNIT.,.EXA.,.METRE.)", UnitType.Custom)]
    [InlineData("IFCCONVERSIONBASEDUNIT(#9,.LENGTHUNIT.,'Inch',#8)", UnitType.Inch)]
    [InlineData("IFCCONVERSIONBASEDUNIT(#9,.LENGTHUNIT.,'FOOT',#8)", UnitType.Foot)]
    [InlineData("IFCCONVERSIONBASEDUNIT(#9,.LENGTHUNIT.,'yard',#8)", UnitType.Yard)]
    [InlineData("IFCCONVERSIONBASEDUNIT(#9,.LENGTHUNIT.,'mile',#8)", UnitType.Mile)]
    [InlineData("IFCCONVERSIONBASEDUNIT(#9,.LENGTHUNIT.,'cubit',#8)", UnitType.Custom)]
    [InlineData("IFCCONTEXTDEPENDENTUNIT(#9,.LENGTHUNIT.,'step')", UnitType.Custom)]
    [InlineData("IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.)", UnitType.Unitless)] // no length at all
    public void The_unit_of_a_model_is_that_of_its_lengths(string unit, UnitType expected)
    {
        IfcImage image = IfcText.Load(
            "#1=IFCUNITASSIGNMENT((#2,#4,#3));\n#2=IFCMONETARYUNIT('EUR');\n"
            + $"#4=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);\n#3={unit};\n"
            + "#8=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(1.),#3);\n#9=IFCDIMENSIONALEXPONENTS(1,0,0,0,0,0,0);\n");
        Assert.Equal(expected, image.UnitType);
    }

    [Fact]
    public void A_model_without_units_has_the_one_that_loading_asks_for_and_no_size()
    {
        IfcImage image = IfcText.Load("#1=IFCPERSON($,'P',$,$,$,$,$,$);\n");
        image.UnitlessDefaultUnitType = UnitType.Foot;
        Assert.Equal(UnitType.Foot, image.UnitType);
        foreach (Func<int> size in new Func<int>[] { () => image.Width, () => image.Height, () => image.Depth })
        {
            string message = Assert.Throws<IfcImageException>(() => size()).Message;
            Assert.Contains("geometry", message, StringComparison.Ordinal);
        }

        image.CacheData();
        Assert.True(image.IsCached);
        image.Dispose();
        Assert.Throws<ObjectDisposedException>(image.CacheData);
    }

    [Fact]
    public void Select_values_are_made_of_members_alone_and_written_with_their_type()
    {
        IfcImage image = IfcText.Load("#1=IFCPROPERTYSINGLEVALUE('x',$,$,$);\n#2=IFCPERSON($,'P',$,$,$,$,$,$);\n");
        var property = (IfcPropertySingleValue4)image.GetEntity(1)!;
        var value = new IfcValue4(new IfcLabel4("a"));
        Assert.Equal(("IfcLabel", "a", "IfcLabel(a)"), (value.TypeName, value.Value, value.ToString()));
        Assert.Null(value.Entity);
        property.NominalValue = value;
        Assert.EndsWith("('x',$,IFCLABEL('a'),$);", property.ToString(), StringComparison.Ordinal);
        property.NominalValue = new IfcValue4(new IfcReal4(-2.5));
        Assert.EndsWith(",IFCREAL(-2.5),$);", property.ToString(), StringComparison.Ordinal);
        string message = Assert.Throws<IfcImageException>(
            () => new IfcUnit4((IIfcType)new IfcLabel4("a"))).Message;
        Assert.Contains("IfcUnit does not admit IfcLabel", message, StringComparison.Ordinal);
        Assert.Throws<ArgumentNullException>(() => new IfcValue4((IIfcType)null!));

        // A value of another select is admitted where its type is.
        property.SetAttribute("NominalValue", new IfcSimpleValue4(new IfcBoolean4(true)));
        Assert.EndsWith(",IFCBOOLEAN(.T.),$);", property.ToString(), StringComparison.Ordinal);
        Assert.IsType<IfcValue4>(property.NominalValue);
        Assert.Throws<IfcImageException>(() => property.SetAttribute("Unit", value));
    }

    [Fact]
    public void Typed_attributes_follow_their_records_and_refuse_what_is_none_of_their_items()
    {
        IfcImage image = IfcText.Load(
            "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n#2=IFCCIRCLE(#3,2.5);\n"
            + "#3=IFCAXIS2PLACEMENT2D(#4,$);\n#4=IFCCARTESIANPOINT((0.,0.));\n"
            + "#5=IFCRELAGGREGATES('0000000000000000000001',$,$,$,#6,(#7));\n"
            + "#6=IFCWALL('0000000000000000000002',$,$,$,$,$,$,$,$);\n"
            + "#7=IFCWALL('0000000000000000000003',$,$,$,$,$,$,$,$);\n");
        var unit = (IfcSIUnit4)image.GetEntity(1)!;
        Assert.Equal("MILLI", unit.GetAttribute("Prefix"));
        Assert.Equal(nameof(IfcSIPrefix4.MILLI), unit.Prefix.ToString());
        unit.Prefix = IfcSIPrefix4.KILO;
        Assert.Equal("#1=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);", unit.ToString());
        unit.Prefix = null;
        Assert.Equal("#1=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);", unit.ToString());
        string message = Assert.Throws<IfcImageException>(() => unit.Prefix = (IfcSIPrefix4)99).Message;
        Assert.Contains("none of its", message, StringComparison.Ordinal);
        message = Assert.Throws<IfcImageException>(() => unit.SetAttribute("Dimensions", null)).Message;
        Assert.Contains("derived", message, StringComparison.Ordinal);
        var circle = (IfcCircle4)image.GetEntity(2)!;
        Assert.Equal(2.5, circle.Radius);
        circle.SetAttribute("Radius", 4F);
        Assert.Equal("#2=IFCCIRCLE(#3,4.);", circle.ToString());
        var part = (IfcWall4)image.GetEntity(7)!;
        Assert.Equal(5, part.Decomposes!.Cast<IIfcEntity>().Single().InstanceId);
        Assert.Contains("Decomposes", part.InverseNames);
        Assert.Equal(("IfcWall", part), (part.TypeName, part.PlainValue));
    }

    // The entity and attribute, the value in XML, and in the record; null where it is refused.
    [Theory]
    [InlineData("IfcPixelTexture", "RepeatS", "true", ".T.")]
    [InlineData("IfcPixelTexture", "RepeatS", " 0 ", ".F.")]
    [InlineData("IfcPixelTexture", "RepeatS", "1", ".T.")]
    [InlineData("IfcPixelTexture", "RepeatS", "false", ".F.")]
    [InlineData("IfcPixelTexture", "RepeatS", "unknown", null)] // a boolean is one or the other
    [InlineData("IfcPixelTexture", "RepeatS", "yes", null)]
    [InlineData("IfcPixelTexture", "Width", "+12", "12")]
    [InlineData("IfcPixelTexture", "Width", "1.5", null)]
    [InlineData("IfcPixelTexture", "Width", "99999999999999999999", null)]
    [InlineData("IfcCircle", "Radius", "1E-3", "0.001")]
    [InlineData("IfcCircle", "Radius", "INF", null)]
    [InlineData("IfcCircle", "Radius", "1,5", null)]
    [InlineData("IfcSIUnit", "Prefix", "milli", ".MILLI.")]
    [InlineData("IfcSIUnit", "Prefix", "", null)]
    [InlineData("IfcSIUnit", "Prefix", "a b", null)]
    [InlineData("IfcPerson", "Id", " a'b ", "' a''b '")]
    public void Simple_values_of_xml_become_values_of_records(
        string entity, string attribute, string text, string? value)
    {
        byte[] file = Encoding.UTF8.GetBytes(
            "<ex:iso_10303_28 xmlns:ex='urn:iso.org:standard:10303:part(28):version(2):xmlschema:common'>"
            + "<uos xmlns='http://www.iai-tech.org/ifcXML/IFC2x3/FINAL'>"
            + $"<{entity} id='i1'><{attribute}>{text}</{attribute}></{entity}></uos></ex:iso_10303_28>");
        if (value is null)
        {
            string message = Assert.Throws<ImageLoadException>(() => Image.Load(new MemoryStream(file))).Message;
            Assert.Contains($"'{text.Trim()}'", message, StringComparison.Ordinal);
            return;
        }

        var image = (IfcImage)Image.Load(new MemoryStream(file));
        string[] values = image.GetEntity(1)!.ToString()!.Split('(', 2)[1][..^2].Split(',');
        Assert.Contains(value, values);
    }
}
