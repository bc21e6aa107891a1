using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Objects exchange their fields with any format, which learns from them all that it has to know.</summary>
public class FieldExchangeTests
{
    public static IEnumerable<object[]> Types => new[] { typeof(CadEntityBase), typeof(CadObjectBase),
        typeof(CadSymbolTableGroupCodes) }
        .SelectMany(PropertyRoundTripTests.Concrete).Select(type => new object[] { type });

    [Theory]
    [MemberData(nameof(Types))]
    public void What_an_object_writes_it_reads_from_another_format(Type type)
    {
        CadBaseObject item = Filled(type);
        List<LoggedField> fields = FieldLog.Of(item);
        CadBaseObject again = (CadBaseObject)Activator.CreateInstance(type)!;
        List<LoggedField> unknown = new FieldLogReader(fields).ReadInto(again);

        Assert.Empty(unknown);
        Assert.Equal(fields, FieldLog.Of(again));
        if (again is not CadSymbolTableGroupCodes)
        {
            PropertyRoundTripTests.Same(item, again);
        }
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void The_kind_of_a_field_fits_its_group_code(Type type)
    {
        foreach (LoggedField field in FieldLog.Of(Filled(type)))
        {
            Assert.True(Fits(field), $"{type.Name}: {field}");
            if (field.Kind == "Handle")
            {
                Assert.Equal(RoleOf(field.Code), field.Target);
            }
        }
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Later_releases_only_add_fields(Type type)
    {
        CadBaseObject item = Filled(type);
        List<LoggedField> before = FieldLog.Of(item, 2000);
        foreach (int release in new[] { 2004, 2007, 2010, 2013, 2018 })
        {
            List<LoggedField> fields = FieldLog.Of(item, release);

            // Cells of tables, data of solids and sizes of proxies have other forms from a release on.
            if (item is not (CadObjectWithAcisData or CadInsertObject or CadAcadProxyEntity))
            {
                Assert.Empty(before.Except(fields));
            }

            before = fields;
        }
    }

    [Fact]
    public void Fields_come_in_declared_order_with_what_they_refer_to()
    {
        CadLine line = new()
        {
            LayerName = "Walls",
            LineTypeName = "DASHED",
            ColorId = 3,
            Thickness = 2,
            SecondPoint = new Cad3DPoint(3, 4, 5)
        };
        Assert.Equal(
            ["Subclass 100", "Name 6 LineType", "Name 8 Layer", "Color 62", "Subclass 100", "Point 10", "Point 20",
                "Point 30", "Point 11", "Point 21", "Point 31", "Double 39"],
            FieldLog.Of(line).Select(field => $"{field.Kind} {field.Code} {field.Target}".TrimEnd()));
        CadLeader leader = new() { DimensionStyleName = "D", AnnotationHandle = "2A", ColorToUse = 4 };
        Assert.Equal(
            ["Name 3 DimensionStyle", "Color 77", "Handle 340 HardPointer"],
            FieldLog.Of(leader).Where(field => field.Code is 3 or 77 or 340)
                .Select(field => $"{field.Kind} {field.Code} {field.Target}".TrimEnd()));
    }

    [Fact]
    public void Entries_of_dictionaries_keep_whether_they_are_owned()
    {
        foreach ((int code, HandleRole role) in new[] { (350, HandleRole.SoftOwner), (360, HandleRole.HardOwner) })
        {
            CadDictionary dictionary = new() { HandleCode = code };
            dictionary.Set("A", "2A");
            dictionary.Set("b", "2B");
            List<LoggedField> fields = FieldLog.Of(dictionary);
            Assert.Equal([(code, role), (code, role)],
                fields.Where(field => field.Kind == "Handle").Select(field => (field.Code, (HandleRole)field.Target!)));
            CadDictionary again = new();
            new FieldLogReader(fields).ReadInto(again);
            Assert.Equal(["A", "b"], again.Names);
            Assert.Equal(("2A", "2B", code), (again.GetHandle("a"), again.GetHandle("B"), again.HandleCode));
        }
    }

    /// <summary>What is not finite, and an entity that has it in a field, a list or a part.</summary>
    public static readonly TheoryData<string, CadEntityBase> NotFinite = new()
    {
        { "a field", new CadCircle { Radius = double.NaN } },
        { "an angle", new CadArc { StartAngle = double.PositiveInfinity } },
        { "a coordinate of a point", new CadLine { FirstPoint = new Cad3DPoint(0, 0, double.NegativeInfinity) } },
        { "an item of a list", new CadSpline { KnotValues = { 0, double.NaN } } },
        { "a point of a list", new CadLwPolyline { Coordinates = { new Cad2DPoint(0, double.NaN) } } },
        { "a part", new CadMultiLine { Vertices = { new CadMultiLineVectorBlock { Miter = new Cad3DPoint(double.NaN, 0,
            0) } } } },
        { "a boundary path", new CadHatch { BoundaryPaths = { new CadHatchBoundaryPathContainer(
            new CadEdgeBoundaryPath { Edges = { new CadBoundaryPathCircularArc { Radius = double.NaN } } }) } } },
        { "a part of a part", LeaderAt(double.NaN) },
    };

    [Theory]
    [MemberData(nameof(NotFinite))]
    public void What_is_not_finite_is_not_copied(string where, CadEntityBase entity)
    {
        string message = Assert.ThrowsAny<CAD.CadExceptions.ImageException>(entity.Clone).Message;
        Assert.True(message.Contains("only finite numbers", StringComparison.Ordinal), $"{where}: {message}");
        Assert.Contains(entity.TypeNameText, message, StringComparison.Ordinal);
    }

    private static CadMLeader LeaderAt(double x)
    {
        CadMLeader leader = new();
        leader.ContextData.LeaderNodes
            .Add(new CadMLeaderNode
            {
                LeaderLines = { new CadMLeaderLine { Vertices = { new Cad3DPoint(x, 0,
            0) } } }
            });
        return leader;
    }

    private static CadBaseObject Filled(Type type)
    {
        CadBaseObject item = (CadBaseObject)Activator.CreateInstance(type)!;
        PropertyRoundTripTests.Fill(item);
        switch (item)
        {
            case CadHatch hatch:
                hatch.SolidFillFlag = 0; // a filled one has no pattern
                break;
            case CadMesh mesh:
                mesh.EdgeList.RemoveAt(2); // an edge has two vertices
                break;
        }

        return item;
    }

    private static HandleRole RoleOf(int code) => code switch
    {
        >= 330 and < 340 => HandleRole.SoftPointer,
        >= 350 and < 360 => HandleRole.SoftOwner,
        >= 360 and < 370 => HandleRole.HardOwner,
        _ => HandleRole.HardPointer,
    };

    // Binary files tell the size of a value by its group code alone.
    private static bool Fits(LoggedField field) => field.Kind switch
    {
        "Double" or "Point" => IsDouble(field.Code),
        "Angle" => field.Code is >= 50 and <= 58,
        "Int16" or "Color" => IsInt16(field.Code) || IsByte(field.Code) || IsInt32(field.Code),
        "Bool" or "Enum" or "Count" => IsInt16(field.Code) || IsByte(field.Code) || IsInt32(field.Code),
        "Int32" => IsInt32(field.Code) || (IsInt16(field.Code)
            && field.Value is >= (int)short.MinValue and <= (int)ushort.MaxValue),
        "Int64" => field.Code is >= 160 and <= 169,
        "Handle" => field.Code is (>= 320 and <= 369) or (>= 390 and <= 399),
        "Name" or "Text" => !IsDouble(field.Code) && !IsInt16(field.Code) && !IsInt32(field.Code)
            && !IsByte(field.Code),
        _ => true,
    };

    private static bool IsDouble(int code) =>
        code is (>= 10 and <= 59) or (>= 110 and <= 149) or (>= 210 and <= 239)
            or (>= 460 and <= 469) or (>= 1010 and <= 1059);

    private static bool IsInt16(int code) =>
        code is (>= 60 and <= 79) or (>= 170 and <= 179) or (>= 270 and <= 289) or (>= 370 and <= 389)
            or (>= 400 and <= 409);

    private static bool IsInt32(int code) => code is (>= 90 and <= 99) or (>= 420 and <= 429) or (>= 440 and <= 459)
        or 1071;

    private static bool IsByte(int code) => code is >= 290 and <= 299;
}
