using System;
using System.Collections;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using System.Reflection;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.DataTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.SunStudy;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Whatever can be set on a new object is there again after saving and loading.</summary>
public class PropertyRoundTripTests
{
    /// <summary>Properties that follow from the place or from one another.</summary>
    private static readonly string[] Derived =
    [
        "ObjectHandle", "SoftOwner", "SpaceMode", "LayoutTabName", "TypeOfDimension", "AttributesFlag", "Flag",
            "VertexFlags", "IsOn", "IsFrozen", "IsLocked",
        "Flags", "LayerName", "HasLastLeaderLinePoint", "HasDoglegVector", "ValueType",
    ];

    private static readonly Type[] InOthers = [typeof(CadBlockEntity), typeof(CadSeqend), typeof(CadAttrib)];

    public static IEnumerable<object[]> Entities => Concrete(typeof(CadEntityBase))
        .Where(type => !InOthers.Contains(type) && !type.IsSubclassOf(typeof(CadVertexBase)))
            .Select(type => new object[] { type });

    /// <summary>Dictionaries have entries instead, and layouts are found again by their blocks.</summary>
    public static IEnumerable<object[]> Objects => Concrete(typeof(CadObjectBase))
        .Where(type => !type.IsSubclassOf(typeof(CadDictionaryBase)) && type != typeof(CadLayout))
        .Select(type => new object[] { type });

    public static IEnumerable<object[]> Records => Concrete(typeof(CadSymbolTableGroupCodes))
        .Select(type => new object[] { type });

    [Theory]
    [MemberData(nameof(Entities))]
    public void Entities_come_back_with_every_property(Type type)
    {
        CadEntityBase entity = (CadEntityBase)Activator.CreateInstance(type)!;
        Fill(entity);
        if (entity is CadHatch hatch)
        {
            hatch.SolidFillFlag = 0; // a filled one has no pattern
        }

        else if (entity is CadMesh mesh)
        {
            mesh.EdgeList.RemoveAt(2); // an edge has two vertices
        }

        CadImage image = new();
        image.AddEntity(entity);
        Same(entity, Assert.Single(DxfText.Reload(image).Entities));
    }

    [Theory]
    [MemberData(nameof(Objects))]
    public void Objects_come_back_with_every_property(Type type)
    {
        CadObjectBase item = (CadObjectBase)Activator.CreateInstance(type)!;
        Fill(item);
        item.ObjectHandle = "ABC";
        CadImage image = new();
        image.Objects.Add(item);
        CadObjectBase again = Assert.Single(DxfText.Reload(image).Objects, one => one.ObjectHandle == "ABC");
        Same(item, again);
        Assert.Empty(again.UnknownCodes);
    }

    [Fact]
    public void Vertices_and_attributes_come_back_with_every_property()
    {
        CadImage image = new();
        CadPolyline polyline = new();
        polyline.Vertices.Add(new Cad2DVertex());
        CadInsertObject insert = new() { Name = "B" };
        insert.Attributes.Add(new CadAttrib());
        Fill(polyline.Vertices[0]);
        Fill(insert.Attributes[0]);
        image.AddEntity(polyline);
        image.AddEntity(insert);
        CadImage again = DxfText.Reload(image);
        Same(polyline.Vertices[0], ((CadPolyline)again.Entities[0]).Vertices[0]);
        Same(insert.Attributes[0], ((CadInsertObject)again.Entities[1]).Attributes[0]);
    }

    [Theory]
    [MemberData(nameof(Records))]
    public void Records_of_tables_come_back_with_every_property(Type type)
    {
        CadSymbolTableGroupCodes record = (CadSymbolTableGroupCodes)Activator.CreateInstance(type)!;
        Fill(record);
        record.Name = "Mine";
        CadImage image = new();
        image.BlockEntities.Add(new CadBlockEntity { Name = "Mine" });
        Add(image, record);
        Same(record, Find(DxfText.Reload(image), record)!);
    }

    [Fact]
    public void Numbers_come_back_to_the_last_bit()
    {
        double[] numbers =
        [
            0.1, 1.0 / 3, Math.PI, -0.0, double.Epsilon, double.MaxValue, -double.MaxValue, 1e-310,
                123456789.123456789, 1e15 + 0.3, 1e22, 1e23, 9007199254740993,
            0.30000000000000004, 5e-5, 99999.99999999999, BitConverter.Int64BitsToDouble(0x3FF0000000000001),
        ];
        Random random = new(1);
        IEnumerable<double> chance = Enumerable.Range(0,
            2000).Select(_ => BitConverter.Int64BitsToDouble(random.NextInt64())).Where(double.IsFinite);
        double[] all = [.. numbers, .. chance];
        CadImage image = new();
        foreach (double number in all)
        {
            image.AddEntity(new CadPoint { CenterPoint = new Cad3DPoint(number, 0, 0) });
        }

        CadImage again = DxfText.Reload(image);
        for (int i = 0; i < all.Length; i++)
        {
            Assert.Equal(BitConverter.DoubleToInt64Bits(all[i]),
                BitConverter.DoubleToInt64Bits(((CadPoint)again.Entities[i]).CenterPoint.X));
        }
    }

    internal static IEnumerable<Type> Concrete(Type parent) => parent.Assembly.GetExportedTypes()
        .Where(type => type.IsSubclassOf(parent) && !type.IsAbstract && type.GetConstructor([]) is not null);

    internal static void Add(CadImage image, CadSymbolTableGroupCodes record)
    {
        IEnumerable table = TableOf(image, record);
        table.GetType().GetMethod("Add", [record.GetType()])!.Invoke(table, [record]);
    }

    internal static object? Find(CadImage image, CadSymbolTableGroupCodes record)
    {
        IEnumerable table = TableOf(image, record);
        return table.GetType().GetMethod("Find")!.Invoke(table, [record.Name]);
    }

    private static IEnumerable TableOf(CadImage image, CadSymbolTableGroupCodes record) => record switch
    {
        CadLayerTable => image.Layers,
        CadLineTypeTableObject => image.LineTypes,
        CadStyleTableObject => image.Styles,
        CadDimensionStyleTable => image.DimensionStyles,
        CadViewTableObject => image.Views,
        CadVportTableObject => image.ViewPorts,
        CadUcsTableObject => image.UCSs,
        CadAppIdTableObject => image.AppIdTables,
        CadBlockTableObject => image.BlockRecords,
        _ => throw new NotSupportedException($"Name the table of {record.GetType().Name} here."),
    };

    private static IEnumerable<PropertyInfo> Settable(object item) => item.GetType().GetProperties()
        .Where(property => !Derived.Contains(property.Name) && property.SetMethod is { IsPublic: true }
            && property.GetIndexParameters().Length == 0);

    private static IEnumerable<PropertyInfo> Lists(object item) => item.GetType().GetProperties()
        .Where(property => property.PropertyType.IsGenericType
            && property.PropertyType.GetInterface(nameof(IEnumerable)) is not null);

    internal static void Fill(object item)
    {
        int seed = 2;
        foreach (PropertyInfo property in Settable(item))
        {
            if (Value(property.PropertyType, property.GetValue(item), ++seed) is { } value)
            {
                property.SetValue(item, value);
            }
        }

        foreach (PropertyInfo property in Lists(item))
        {
            IList list = (IList)property.GetValue(item)!;
            list.Clear();
            Type part = property.PropertyType.GetGenericArguments()[0];
            for (int i = 0; i < 3 && (Value(part, null, ++seed) ?? FilledPart(part)) is { } value; i++)
            {
                list.Add(value);
            }
        }

        foreach (PropertyInfo property in Parts(item))
        {
            if (property.SetMethod is not null)
            {
                property.SetValue(item, Activator.CreateInstance(property.PropertyType));
            }

            Fill(property.GetValue(item)!);
        }

        Adapt(item);
    }

    // What is not a matter of single properties: of values that exclude one another, one stays.
    private static void Adapt(object item)
    {
        switch (item)
        {
            case AssocEvaluatedVariant value:
                (value.Code, value.Integer, value.Text, value.Point) = (40, 0, "", new Cad3DPoint());
                break;
            case CadFieldData data:
                (data.ValueType, data.Integer, data.Text, data.Date) = (2, 0, "", []);
                (data.Point, data.ObjectHandle) = (new Cad3DPoint(), "0");
                break;
            case CadDataTable table:
                table.RowCount = 3;
                break;
            case CadDataTableColumn column:
                column.ColumnType = 2;
                column.Integers.Clear();
                column.Strings.Clear();
                column.Points.Clear();
                break;
            case CadSunStudy study:
                study.OutputType = 0;
                study.Hours.Clear();
                study.Hours.AddRange([1, 0, 1]);
                break;
            case CadVisualStyle style:
                style.Form = 0;
                style.ValueSources.Clear();
                break;
            case TableDataCellContent content:
                (content.ContentType, content.ObjectHandle) = (1, "0");
                break;
            case CadUnderlay underlay:
                underlay.Flags = UnderlayFlags.ClipInside;
                break;
            case CadSpatialFilter filter:
                filter.InverseTransform.AddRange(Enumerable.Range(3, 9).Select(static i => (double)i));
                filter.Transform.AddRange(Enumerable.Range(5, 9).Select(static i => (double)i));
                break;
            case CadCoordinationModel model:
                model.Transform.AddRange(Enumerable.Range(3, 13).Select(static i => (double)i));
                break;
            case CadGeoData geo:
                geo.MeshTargetPoints.RemoveAt(2);
                geo.MeshSourcePoints.RemoveAt(2);
                break;
        }
    }

    private static object? FilledPart(Type type)
    {
        if (!IsPart(type))
        {
            return null;
        }

        object part = Activator.CreateInstance(type)!;
        Fill(part);
        return part;
    }

    /// <summary>Parts of objects have fields of their own, but are no objects.</summary>
    private static bool IsPart(Type type) => type is
    {
        IsClass: true,
        IsAbstract: false
    } && !type.IsSubclassOf(typeof(CadBaseObject))
        && type.GetMethods(BindingFlags.Instance | BindingFlags.NonPublic | BindingFlags.DeclaredOnly)
            .Any(static method => method.Name == "Exchange");

    private static IEnumerable<PropertyInfo> Parts(object item) => item.GetType().GetProperties()
        .Where(property => IsPart(property.PropertyType));

    // Small numbers fit every type; texts are numbers in hexadecimal, so that they may stand for handles.
    private static object? Value(Type type, object? present, int seed) => type switch
    {
        _ when type == typeof(double) => seed + 0.25,
        _ when type == typeof(short) => (short)(seed % 7 + 2),
        _ when type == typeof(int) => seed % 7 + 2,
        _ when type == typeof(bool) => !(bool)(present ?? false),
        _ when type == typeof(string) => (0xA00 + seed).ToString("X", CultureInfo.InvariantCulture),
        _ when type == typeof(Cad3DPoint) => new Cad3DPoint(seed, seed + 0.5, -seed),
        _ when type == typeof(CadSize) => new CadSize(seed, seed + 0.5),
        _ when type == typeof(byte[]) => new byte[] { (byte)seed, 2, 3 },
        _ when type == typeof(Cad2DPoint) => new Cad2DPoint(seed, seed + 0.5),
        _ when type.IsEnum => Enum.GetValues(type).Cast<object>().LastOrDefault(value => !value.Equals(present)),
        _ => null,
    };

    internal static void Same(object expected, object actual)
    {
        Assert.Equal(expected.GetType(), actual.GetType());
        Assert.Equal(Describe(expected), Describe(actual));
    }

    /// <summary>Returns a line for each property of an object and its parts.</summary>
    internal static string[] Describe(object item) =>
    [
        .. Settable(item).Where(property => !property.PropertyType.IsClass || property.PropertyType == typeof(string)
            || IsPoint(property.PropertyType) || property.PropertyType == typeof(byte[]))
            .Select(property => $"{property.Name} = {Shown(property.GetValue(item))}"),
        .. Lists(item).Where(property => property.PropertyType.GetGenericArguments()[0] is var part && (!part.IsClass
            || part == typeof(string) || IsPoint(part)))
            .Select(property =>
            $"{property.Name} = {string.Join(' ', ((IList)property.GetValue(item)!).Cast<object>().Select(Shown))}"),
        .. Parts(item).SelectMany(property => property.GetValue(item) is { } part ? Describe(part) : []),
        .. Lists(item).Where(property => IsPart(property.PropertyType.GetGenericArguments()[0]))
            .SelectMany(property => ((IList)property.GetValue(item)!).Cast<object>().SelectMany(Describe)),
    ];

    private static bool IsPoint(Type type) => type == typeof(Cad3DPoint) || type == typeof(Cad2DPoint)
        || type == typeof(CadSize);

    private static string Shown(object? value) => value is byte[] bytes
        ? Convert.ToHexString(bytes) : Convert.ToString(value, CultureInfo.InvariantCulture) ?? "nothing";
}
