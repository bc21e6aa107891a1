using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Queries compared to scans of whole models, and damaged records with the places in their errors.</summary>
public class QueryTests
{
    private static readonly string[] Types =
        [
            "IfcRoot", "IfcObject", "IfcProduct", "IfcElement", "IfcRelationship", "IfcProperty",
            "IfcRepresentationItem", "IfcCurve", "IfcPlacement", "IfcWall", "IfcCartesianPoint", "IfcNamedUnit",
            "IfcTypeObject", "IfcProfileDef", "IfcObjectPlacement",
        ];

    [DrawingTheory]
    [MemberData(nameof(ModelTests.RealModels), MemberType = typeof(ModelTests))]
    public void Instances_of_types_are_those_that_a_walk_finds(string name)
    {
        IfcImage image = (IfcImage)Image.Load(Path.Combine(SharedDrawings.Root!, "ifc", name));
        SchemaTable table = IfcSchema.Of(image.Version).Table;
        List<(long Id, HashSet<string> Names, string Own)> all =
        [
            .. image.Entities.Select(one => (one.InstanceId, Line(table, one.EntityName), one.EntityName)),
        ];
        foreach (string type in Types)
        {
            Assert.Equal(
                all.Where(one => one.Names.Contains(type)).Select(one => one.Id),
                image.GetEntitiesOfType(type).Select(one => one.InstanceId));
            Assert.Equal(
                all.Where(one => one.Own == type).Select(one => one.Id),
                image.GetEntitiesOfType(type.ToUpperInvariant(), true).Select(one => one.InstanceId));
        }

        Assert.All(all.Where((_, i) => i % 97 == 0), one => Assert.Equal(one.Id, image.GetEntity(one.Id)!.InstanceId));
    }

    [DrawingTheory]
    [MemberData(nameof(ModelTests.RealModels), MemberType = typeof(ModelTests))]
    public void Inverse_attributes_are_those_that_a_walk_finds(string name)
    {
        IfcImage image = (IfcImage)Image.Load(Path.Combine(SharedDrawings.Root!, "ifc", name));
        SchemaTable table = IfcSchema.Of(image.Version).Table;
        Dictionary<long, List<(IIfcEntity By, string Attribute)>> references = [];
        foreach (IIfcEntity entity in image.Entities)
        {
            foreach (string attribute in entity.AttributeNames)
            {
                foreach (IIfcEntity target in Targets(entity.GetAttribute(attribute)).Distinct())
                {
                    references.TryAdd(target.InstanceId, []);
                    references[target.InstanceId].Add((entity, attribute));
                }
            }
        }

        foreach (IIfcEntity entity in image.Entities)
        {
            List<(IIfcEntity By, string Attribute)> own = references.GetValueOrDefault(entity.InstanceId, []);
            Assert.Equal(
                own.Select(one => one.By.InstanceId).Distinct(), entity.Referrers.Select(one => one.InstanceId));
            foreach (IfcInverseInfo inverse in IfcSchema.Of(image.Version).FindClass(entity.EntityName)!.Inverses)
            {
                string attribute = inverse.Referrer.Attributes[inverse.Attribute].Name;
                IEnumerable<long> expected = own.Where(
                    one => one.Attribute == attribute && Line(table, one.By.EntityName).Contains(inverse.Referrer.Name))
                    .Select(one => one.By.InstanceId).Distinct();
                Assert.Equal(expected, entity.GetInverse(inverse.Name).Select(one => one.InstanceId));
            }
        }
    }

    [Theory]
    [InlineData("IFCDIRECTION((1.,0.)", "a ',' or ')' is missing")]
    [InlineData("IFCDIRECTION((1.,,0.))", "no value can begin with ','")]
    [InlineData("IFCDIRECTION((1. 0.))", "a ',' or ')' is missing")]
    [InlineData("IFCDIRECTION((1.,0.)))", "a ';' is missing")]
    [InlineData("IFCDIRECTION", "a '(' is missing")]
    [InlineData("IFCDIRECTION()", "IFCDIRECTION has 1 attributes, 0 are given")]
    [InlineData("IFCDIRECTION((1.,0.),$)", "IFCDIRECTION has 1 attributes, 2 are given")]
    [InlineData("IFCDIRECTION((#))", "a reference has no number")]
    [InlineData("IFCDIRECTION((#0))", "it refers to #0, which does not exist")]
    [InlineData("IFCDIRECTION((#x))", "a reference has no number")]
    [InlineData("IFCDIRECTION((#77))", "it refers to #77, which does not exist")]
    [InlineData("IFCDIRECTION((#99999999999999999999))", "which does not exist")]
    [InlineData("IFCDIRECTION((.T))", "an enumeration item has no closing period")]
    [InlineData("IFCDIRECTION((..))", "an enumeration item has no closing period")]
    [InlineData("IFCDIRECTION((\"0G\"))", "digits that are not hexadecimal")]
    [InlineData("IFCDIRECTION((\"\"))", "no count of unused bits")]
    [InlineData("IFCDIRECTION((\"4FF\"))", "no count of unused bits")]
    [InlineData("IFCDIRECTION((1.E))", "'1.E' is no value")]
    [InlineData("IFCDIRECTION((-))", "no value can begin with '-'")]
    [InlineData("IFCDIRECTION((1.2.3))", "'1.2.3' is no value")]
    [InlineData("IFCDIRECTION((1.E999))", "'1.E999' is no value")]
    [InlineData("IFCDIRECTION((IFCREAL(1.))", "a ',' or ')' is missing")]
    [InlineData("IFCDIRECTION((IFCREAL 1.))", "a '(' is missing")]
    [InlineData("IFCDIRECTION((@))", "no value can begin with '@'")]
    [InlineData("IFCNOTHING((1.))", "the schema has no entity IFCNOTHING")]
    [InlineData("IFCCURVE()", "IFCCURVE is abstract")]
    [InlineData("=IFCDIRECTION((1.,0.))", "a '(' is missing")]
    [InlineData("5", "a '(' is missing")]
    public void Damaged_records_are_named_by_line_and_number_or_when_they_are_read(string body, string message)
    {
        string records = $"\n\n#7=IFCDIRECTION((0.,1.));\n\n#5={body};\n#8=IFCDIRECTION((1.,1.));\n";
        Exception? refused = Record.Exception(() => IfcText.Load(records));
        if (refused is null)
        {
            // Values are parsed on access.
            refused = Assert.Throws<CadExceptions.ImageFormats.IfcImageException>(
                () => ((IList)IfcText.Load(records).GetEntity(5)!.GetAttribute(0)!).Cast<object>().Count());
            Assert.Contains("line 12, #5=IFCDIRECTION: ", refused.Message, StringComparison.Ordinal);
            Assert.Contains(message, refused.Message, StringComparison.Ordinal);
            return;
        }

        Assert.IsType<ImageLoadException>(refused);
        Assert.Contains("'test.ifc', line 12, #5: ", refused.Message, StringComparison.Ordinal);
        Assert.Contains(message, refused.Message, StringComparison.Ordinal);

        LoadOptions options = new() { IgnoreErrors = true };
        IfcImage image = IfcText.Load(records, options);
        Assert.Contains("'test.ifc', line 12, #5: ", options.Errors[0], StringComparison.Ordinal);
        Assert.Equal("#7=IFCDIRECTION((0.,1.));", image.GetEntity(7)!.ToString());
        Assert.Equal("#8=IFCDIRECTION((1.,1.));", image.GetEntity(8)!.ToString());
        IfcImage again = IfcText.LoadFile(IfcText.Saved(image), new LoadOptions { IgnoreErrors = true });
        Assert.Equal(image.Entities.Select(one => one.InstanceId), again.Entities.Select(one => one.InstanceId));
    }

    [Theory]
    [InlineData(2)]
    [InlineData(3)]
    [InlineData(5000)]
    public void Circles_of_references_are_loaded_removed_and_saved(int length)
    {
        StringBuilder records = new("#90001=IFCAXIS2PLACEMENT3D(#90002,$,$);\n#90002=IFCCARTESIANPOINT((0.,0.,0.));\n");
        for (int i = 1; i <= length; i++)
        {
            records.Append($"#{i}=IFCLOCALPLACEMENT(#{(i % length) + 1},#90001);\n");
        }

        IfcImage image = IfcText.Load(records.ToString());
        Assert.Equal(IfcText.File(records.ToString()), IfcText.Saved(image));
        IIfcEntity at = image.GetEntity(1)!;
        for (int i = 0; i < length; i++)
        {
            at = (IIfcEntity)at.GetAttribute("PlacementRelTo")!;
        }

        Assert.Equal(1, at.InstanceId);
        Assert.Throws<CadExceptions.ImageFormats.IfcImageException>(() => image.RemoveEntity(at));
        at.SetAttribute("PlacementRelTo", null);
        for (IIfcEntity? next = image.GetEntity(2); next is not null;)
        {
            // The cycle is broken now: its instances can be removed one by one.
            IIfcEntity gone = next;
            next = gone.InstanceId == 1 ? null : (IIfcEntity?)gone.GetAttribute("PlacementRelTo");
            image.RemoveEntity(gone);
        }

        Assert.Equal(2, image.Entities.Count);
    }

    private static HashSet<string> Line(SchemaTable table, string name)
    {
        HashSet<string> names = [];
        for (string? at = name;
            at is not null && table.Entities.TryGetValue(at, out SchemaEntity? level);
            at = level.BaseName)
        {
            names.Add(at);
        }

        return names;
    }

    private static IEnumerable<IIfcEntity> Targets(object? value) => value switch
    {
        IIfcEntity entity => [entity],
        IfcSelect select => Targets(select.Value),
        string or byte[] => [],
        IEnumerable items => items.Cast<object?>().SelectMany(Targets),
        _ => [],
    };
}
