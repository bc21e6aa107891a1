using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Alike entities have one digest, and others have others.</summary>
public class EntityDigestTests
{
    private const int Digits = 6;

    public static IEnumerable<object[]> Types => PropertyRoundTripTests.Concrete(typeof(CadEntityBase))
        .Select(type => new object[] { type });

    [Theory]
    [MemberData(nameof(Types))]
    public void A_copy_is_alike_and_a_new_entity_is_not(Type type)
    {
        CadEntityBase entity = (CadEntityBase)Activator.CreateInstance(type)!;
        PropertyRoundTripTests.Fill(entity);
        CadEntityBase copy = EntityCopy.Of(entity);
        copy.ObjectHandle = "FEED";
        Assert.Equal(Of(entity), Of(copy));
        Assert.NotEqual(Of(entity), Of((CadEntityBase)Activator.CreateInstance(type)!));
    }

    [Fact]
    public void What_makes_no_difference_to_people_makes_none()
    {
        CadLine line = new() { LineTypeName = "Dotted", FirstPoint = new Cad3DPoint(1, 0, 0) };
        CadLine other = new() { LineTypeName = "DOTTED", FirstPoint = new Cad3DPoint(1.0000001, -0.0, 0) };
        Assert.Equal(Of(line), Of(other));
        other.FirstPoint.X = 1.00001;
        Assert.NotEqual(Of(line), Of(other));
    }

    [Fact]
    public void What_stands_in_another_field_is_another_entity()
    {
        CadEntityBase[] all =
        [
            new CadLine { Thickness = 1 }, new CadLine { ColorId = 1 }, new CadLine { LayerName = "1" },
            new CadLine { FirstPoint = new Cad3DPoint(1, 0, 0) }, new CadLine { FirstPoint = new Cad3DPoint(0, 1, 0) },
            new CadLine { SecondPoint = new Cad3DPoint(1, 0, 0) },
            new CadLine { SecondPoint = new Cad3DPoint(0, 0, 1) },
            new CadLine { ColorName = "1" }, new CadLine { LinetypeScale = 2 }, new CadRay(), new CadXLine(),
            new CadRegion(), new CadRegion { DataRecord = CadAcdsRecord.Holding([1]) },
            new CadRegion { DataRecord = CadAcdsRecord.Holding([2]) },
            new RawEntity("ODD"), new RawEntity("ODD") { Kept = new KeptBits { Release = 2010, Record = [1] } },
        ];
        Assert.Equal(all.Length, all.Select(Of).Distinct().Count());
    }

    private static (ulong Low, ulong High) Of(CadEntityBase entity)
    {
        List<ulong> digest = EntityDigests.Of([entity], Digits);
        return (digest[0], digest[1]);
    }
}
