using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Ifc4.Entities;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>The schemas in the tables, and the classes generated from them.</summary>
public class SchemaTests
{
    [Theory]
    [InlineData(IfcVersion.IFC2X3, 653, 117, 46, 164)]
    [InlineData(IfcVersion.IFC4, 776, 130, 60, 207)]
    [InlineData(IfcVersion.IFC4X3, 876, 132, 61, 243)]
    public void Schemas_have_as_many_types_as_are_published(
        IfcVersion version, int entities, int defined, int selects, int enumerations)
    {
        SchemaTable table = IfcSchema.Of(version).Table;
        Assert.Equal(
            (entities, defined, selects, enumerations),
            (table.Entities.Count, table.DefinedTypes.Count, table.Selects.Count, table.Enumerations.Count));
    }

    [Theory]
    [InlineData(
        IfcVersion.IFC2X3, "IfcWall",
        "GlobalId OwnerHistory Name? Description? ObjectType? ObjectPlacement? Representation? Tag?")]
    [InlineData(
        IfcVersion.IFC4, "IfcWall",
        "GlobalId OwnerHistory? Name? Description? ObjectType? ObjectPlacement? Representation? Tag? PredefinedType?")]
    [InlineData(IfcVersion.IFC4, "IfcSIUnit", "Dimensions* UnitType Prefix? Name")]
    [InlineData(
        IfcVersion.IFC4, "IfcGeometricRepresentationSubContext",
        "ContextIdentifier? ContextType? CoordinateSpaceDimension* Precision* WorldCoordinateSystem* "
            + "TrueNorth* ParentContext TargetScale? TargetView UserDefinedTargetView?")]
    [InlineData(
        IfcVersion.IFC4X3, "IfcAlignmentSegment",
        "GlobalId OwnerHistory? Name? Description? ObjectType? ObjectPlacement? Representation? DesignParameters")]
    public void Attributes_are_in_record_order(IfcVersion version, string entity, string expected)
    {
        IEnumerable<string> found = IfcSchema.Of(version).FindClass(entity)!.Attributes
            .Select(one => one.Name + (one.IsDerived ? "*" : one.IsOptional ? "?" : ""));
        Assert.Equal(expected, string.Join(' ', found));
    }

    [Fact]
    public void Numbers_of_classes_show_their_subtypes()
    {
        foreach (IfcVersion version in Enum.GetValues<IfcVersion>())
        {
            IfcSchema schema = IfcSchema.Of(version);
            foreach (IfcClass one in schema.Classes)
            {
                HashSet<string> bases = [];
                for (SchemaEntity? level = schema.Table.Entities[one.Name]; level is not null;)
                {
                    bases.Add(level.Name);
                    level = level.BaseName is null ? null : schema.Table.Entities[level.BaseName];
                }

                Assert.All(schema.Classes, other => Assert.Equal(bases.Contains(other.Name), one.IsA(other)));
            }
        }
    }

    [Fact]
    public void Properties_are_those_of_the_table_with_their_documentation()
    {
        foreach (IfcVersion version in Enum.GetValues<IfcVersion>())
        {
            foreach (IfcClass one in IfcSchema.Of(version).Classes)
            {
                IEnumerable<string> expected = one.Attributes.Select(info => info.Name)
                    .Concat(one.Inverses.Select(info => info.Name)).Order(StringComparer.Ordinal);
                Type type = typeof(IfcWall4).Assembly.GetType(
                    $"Korvan.CAD.FileFormats.Ifc.{Folder(version)}.Entities.{one.Name}{Suffix(version)}", true)!;
                IEnumerable<string> found = type.GetProperties(BindingFlags.Public | BindingFlags.Instance)
                    .Where(property => property.DeclaringType != typeof(IfcEntityBase))
                    .Select(property => property.Name).Order(StringComparer.Ordinal);
                Assert.Equal(expected, found);
                Assert.Equal(one.IsAbstract, type.IsAbstract);
            }
        }
    }

    [Theory]
    [InlineData("IfcActorSelect", "IfcPerson", true)]
    [InlineData("IfcActorSelect", "IfcWall", false)]
    [InlineData("IfcObjectReferenceSelect", "IfcPostalAddress", true)] // through its base
    [InlineData("IfcValue", "IfcLabel", true)] // through IfcSimpleValue
    [InlineData("IfcValue", "IfcCardinalPointReference", false)]
    public void Select_types_admit_members_also_through_other_selects(string select, string type, bool admits)
    {
        Assert.Equal(admits, IfcSchema.Of(IfcVersion.IFC4).Admits(select, type));
    }

    private static string Suffix(IfcVersion version) => version.ToString()[3..];

    private static string Folder(IfcVersion version) => "Ifc" + Suffix(version).ToLowerInvariant();
}
