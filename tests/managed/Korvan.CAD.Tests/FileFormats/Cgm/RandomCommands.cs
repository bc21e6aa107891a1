using System;
using System.Collections;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using DataType = Korvan.CAD.FileFormats.Cgm.Classes.StructuredDataRecord.StructuredDataType;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>How numbers and colours are coded for random commands.</summary>
public enum Coding
{
    /// <summary>The defaults: integers of 16 bits, fixed reals, colours of the table.</summary>
    Narrow,

    /// <summary>Integers of 32 bits, reals in double precision, real coordinates, direct colours.</summary>
    Wide,
}

/// <summary>Commands with random parameters that a metafile of a coding can hold, from what their properties
/// declare.</summary>
internal sealed class RandomCommands
{
    private readonly Random _random;
    private readonly bool _isWide;
    private readonly Dictionary<Type, Action<Command>> _adjust;

    internal RandomCommands(int seed, Coding coding)
    {
        _random = new Random(seed);
        _isWide = coding == Coding.Wide;
        _adjust = new Dictionary<Type, Action<Command>>
        {
            [typeof(BeginTileArray)] = Adjust<BeginTileArray>(AdjustDirections),
            [typeof(MetafileElementList)] = Adjust<MetafileElementList>(one =>
                one.Elements = List(() => Choice("VERSION3", "DRAWINGSET", "LINE", "ESCAPE", "APSATTR", "15,3"))),
            [typeof(MetafileDefaultsReplacement)] = Adjust<MetafileDefaultsReplacement>(one =>
                one.Commands = List<Command>(() => _random.Next(2) == 0 ? Create<LineWidth>() : Create<TextPath>())),
            [typeof(ColourValueExtent)] = Adjust<ColourValueExtent>(one =>
                (one.Minimum, one.Maximum) = (Repeat(3, Component), Repeat(3, Component))),
            [typeof(ColourCalibration)] = Adjust<ColourCalibration>(AdjustCalibration),
            [typeof(CharacterSetList)] = Adjust<CharacterSetList>(one => (one.Types, one.Designations) =
                (Repeat(3, Member<CharacterSetList.Type>), Repeat(3, () => Choice("B", "4/2", "")))),
            [typeof(PictureDirectory)] = Adjust<PictureDirectory>(one => one.Infos =
                List(() => new PictureDirectory.PDInfo
                {
                    Identifier = Text(),
                    Location = Place((int)one.LocationType),
                    Directory = Place((int)one.LocationType),
                })),
            [typeof(ApplicationStructureDirectory)] = Adjust<ApplicationStructureDirectory>(one => one.Infos =
                List(() => new ApplicationStructureDirectory.ApplicationStructureInfo
                {
                    Identifier = Text(),
                    Location = Place((int)one.LocationType),
                })),
            [typeof(HatchStyleDefinition)] = Adjust<HatchStyleDefinition>(one =>
                one.LineTypes = Repeat(one.GapWidths.Count, Integer)),
            [typeof(PolygonSet)] = Adjust<PolygonSet>(one =>
                (one.Points, one.Flags) = (Repeat(7, Point), Repeat(7, Member<PolygonSet.EdgeFlag>))),
            [typeof(GeneralizedDrawingPrimitive)] = Adjust<GeneralizedDrawingPrimitive>(
                one => one.Points = List(Point)),
            [typeof(NonUniformBSpline)] = Adjust<NonUniformBSpline>(AdjustKnots),
            [typeof(NonUniformRationalBSpline)] = Adjust<NonUniformRationalBSpline>(one =>
            {
                AdjustKnots(one);
                one.Weights = Repeat(one.ControlPoints.Count, Real);
            }),
            [typeof(CellArray)] = Adjust<CellArray>(
                one => (one.CellsPerLine, one.LineCount, one.LocalPrecision, one.Cells) = Cells()),
            [typeof(PatternTable)] = Adjust<PatternTable>(
                one => (one.CellsPerLine, one.LineCount, one.LocalPrecision, one.Cells) = Cells()),
            [typeof(Tile)] = Adjust<Tile>(one => one.CellPrecision = Choice(0, 1, 2, 4, 8, 16, 24, 32)),
            [typeof(BitonalTile)] = Adjust<BitonalTile>(one => (one.Background, one.Foreground) = (Colour(), Colour())),
            [typeof(InterpolatedInterior)] = Adjust<InterpolatedInterior>(one =>
            {
                one.Style = Choice(1, 2, 3, -5);
                one.ReferenceGeometry = Repeat(one.Style == 1 ? 2 : 4, Vdc);
            }),
            [typeof(AspectSourceFlags)] = Adjust<AspectSourceFlags>(one =>
                one.Infos = List(() => new AspectSourceFlags.AspectSourceFlagsInfo(
                    Member<AspectSourceFlags.ASFType>(), Member<AspectSourceFlags.ASFValue>()))),
            [typeof(InheritanceFilter)] = Adjust<InheritanceFilter>(one =>
                (one.Filters, one.ComesFromSegment) = (List(Member<InheritanceFilter.Filter>), _random.Next(2) == 0)),
        };
    }

    /// <summary>All kinds of commands that have a form in both encodings, but the end.</summary>
    internal static IReadOnlyList<Type> Kinds { get; } =
    [
        .. typeof(Command).Assembly.GetTypes().Where(type => type.IsSubclassOf(typeof(Command)) && !type.IsAbstract
            && type != typeof(UnknownCommand) && type != typeof(NoOp) && type != typeof(EndMetafile)),
    ];

    /// <summary>The commands that make a coding hold, from the beginning of the metafile into a picture.</summary>
    internal static Command[] Before(Coding coding) => coding == Coding.Narrow
        ? [new BeginMetafile("before"), new BeginPicture("before")]
        :
        [
            new BeginMetafile("before"), new VdcType { Value = VdcType.Type.Real },
            new IntegerPrecision { Precision = 32 },
            new IndexPrecision { Precision = 32 }, new NamePrecision { Precision = 32 },
            new ColourIndexPrecision { Precision = 32 }, new RealPrecision { Value = Precision.Floating64 },
            new MetafileDefaultsReplacement
            {
                Commands =
                [
                    new VdcRealPrecision { Value = Precision.Floating64 },
                    new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
                ],
            },
            new BeginPicture("before"),
        ];

    /// <summary>The properties of a command or group that are parameters of files.</summary>
    internal static IEnumerable<(PropertyInfo Property, CustomAttributeData Attribute)> Declared(Type type) =>
        from property in type.GetProperties()
        from attribute in property.CustomAttributes
        where attribute.AttributeType.IsSubclassOf(typeof(CgmParameterAttribute))
        select (property, attribute);

    internal T Create<T>()
        where T : Command => (T)Create(typeof(T));

    internal Command Create(Type kind)
    {
        var command = (Command)Fill(Activator.CreateInstance(kind)!);
        if (_adjust.TryGetValue(kind, out Action<Command>? adjust))
        {
            adjust(command);
        }

        return command;
    }

    private static Action<Command> Adjust<T>(Action<T> adjust)
        where T : Command => command => adjust((T)command);

    private object Fill(object group)
    {
        foreach ((PropertyInfo property, CustomAttributeData attribute) in Declared(group.GetType()))
        {
            Type type = property.PropertyType;
            if (attribute.AttributeType == typeof(CgmCustomAttribute))
            {
                continue;
            }

            bool isList = type.IsGenericType && type.GetGenericTypeDefinition() == typeof(List<>);
            property.SetValue(group, isList ? FillList(type, attribute) : Value(type, attribute));
        }

        return group;
    }

    private object FillList(Type type, CustomAttributeData attribute)
    {
        var list = (IList)Activator.CreateInstance(type)!;
        CustomAttributeNamedArgument count = attribute.NamedArguments.FirstOrDefault(one => one.MemberName == "Count");
        int length = int.TryParse(count.TypedValue.Value as string, out int stated) ? stated : _random.Next(6);
        for (int i = 0; i < length; i++)
        {
            list.Add(Value(type.GetGenericArguments()[0], attribute));
        }

        return list;
    }

    private object Value(Type type, CustomAttributeData attribute) =>
        attribute.AttributeType.Name["Cgm".Length..^"Attribute".Length] switch
        {
            "Integer" or "Name" => Integer(),
            "Index" => type.IsEnum ? Member(type) : Integer(),
            "ColorIndex" => ColorIndex(),
            "Enum" => Member(type),
            "Flag" or "YesNo" => _random.Next(2) == 0,
            "Real" => Real(),
            "FloatingReal" => (double)Choice(0, 1, -0.25f, float.MaxValue, float.Epsilon, _random.NextSingle()),
            "Vdc" or "Size" => Vdc(),
            "Point" => Point(),
            "ViewportPoint" => new ViewportPoint(new VC(Real()), new VC(Real())),
            "Color" => Colour(),
            "DirectColor" => DirectColor(),
            "String" => Text(),
            "Data" => Bytes(_random.Next(400)),
            "Record" => Record(2),
            "Bits" => Bytes(2 * _random.Next(40)),
            "SignedBits" or "UnsignedBits" => Width(attribute),
            "LocalBits" => 0,
            "RealForm" => Member<Precision>(),
            "Groups" => Fill(Activator.CreateInstance(type)!),
            string other => throw new InvalidOperationException($"no random value for {other}"),
        };

    private int Width(CustomAttributeData attribute)
    {
        var widths = (IReadOnlyCollection<CustomAttributeTypedArgument>)attribute.ConstructorArguments[0].Value!;
        return (int)widths.ElementAt(_random.Next(widths.Count)).Value!;
    }

    // The ends of the range matter most.
    private int Integer()
    {
        (int lowest, int highest) = _isWide ? (int.MinValue, int.MaxValue) : (short.MinValue, short.MaxValue);
        return Choice(lowest, highest, -1, 0, 1, _random.Next(lowest, highest), _random.Next(-9, 10));
    }

    private int ColorIndex() => Choice(0, _isWide ? int.MaxValue : byte.MaxValue, _random.Next(256));

    private long Component() => _random.Next(256);

    private long Place(int width) => Choice(0, (1L << (8 << width)) - 1, _random.Next(256));

    private double Real() => _isWide
        ? Choice(0, 1, -1, double.MaxValue, double.Epsilon, -1e-300, _random.NextDouble(), _random.NextDouble() * 1e6)
        : Choice(0, -32768, 32767, _random.Next(-1 << 31, int.MaxValue) / 65536.0);

    // Whole where coordinates are, and such that a fixed real holds it.
    private double Vdc() => _isWide ? Real() : Choice(0, -32768, 32767, _random.Next(-32768, 32768));

    private CgmPoint Point() => new(Vdc(), Vdc());

    private CgmColor Colour() => _isWide ? DirectColor() : new CgmColor(ColorIndex());

    private CgmColor DirectColor() => new(Color.FromArgb(_random.Next(256), _random.Next(256), _random.Next(256)));

    private string Text()
    {
        const string latin = "ab '\"\t;%_$/(é,Ãÿ", wide = "日λЖ😀";
        string characters = _random.Next(3) == 0 ? latin : latin[..8];
        int length = _random.Next(20) == 0 ? 33_000 : Choice(0, 1, 5, 254, 255, 300);
        string text = string.Concat(
            Enumerable.Range(0, length).Select(_ => characters[_random.Next(characters.Length)]));
        return _random.Next(5) == 0 ? text + wide : text;
    }

    private byte[] Bytes(int count)
    {
        byte[] bytes = new byte[count];
        _random.NextBytes(bytes);
        return bytes;
    }

    private StructuredDataRecord Record(int depth)
    {
        var record = new StructuredDataRecord();
        foreach (DataType type in List(Member<DataType>).Where(type => depth > 0 || type != DataType.StructuredData))
        {
            record.Members.Add(new StructuredDataRecord.Member(type, List(() => Item(type, depth - 1))));
        }

        return record;
    }

    private object Item(DataType type, int depth) => type switch
    {
        DataType.StructuredData => Record(depth),
        DataType.ColorIndex => ColorIndex(),
        DataType.DirectColor => DirectColor(),
        DataType.ColorList => Colour(),
        DataType.Enumeration or DataType.Integer16 => Choice(-32768, -1, 0, 32767),
        DataType.Integer8 => Choice(-128, -1, 0, 127),
        DataType.Integer32 => Choice(int.MinValue, -1, 0, int.MaxValue),
        DataType.ViewportCoordinate => new VC(Real()),
        DataType.Real => Real(),
        DataType.Coordinate => Vdc(),
        DataType.Text or DataType.FixedText => Text(),
        DataType.ColorComponent or DataType.Unsigned8 => _random.Next(256),
        DataType.Unsigned16 or DataType.Bits => Choice(0, ushort.MaxValue, _random.Next(65536)),
        DataType.Unsigned32 => _random.Next(2) == 0 ? uint.MaxValue + 0.0 : (object)_random.Next(),
        _ => Integer(),
    };

    private (int Width, int Height, int Precision, int[] Cells) Cells()
    {
        (int width, int height) = (_random.Next(1, 40), _random.Next(1, 9));
        int bits = _isWide ? Choice(0, 8, 16, 24, 32) : Choice(0, 1, 2, 4, 8, 16, 24, 32);
        int limit = (int)Math.Min(int.MaxValue, 1L << (bits == 0 ? 8 : bits));
        bool hasRuns = _random.Next(2) == 0;
        int cell = 0;
        int[] cells = new int[width * height];
        for (int i = 0; i < cells.Length; i++)
        {
            bool isNew = i == 0 || !hasRuns || _random.Next(30) == 0;
            cell = !isNew ? cell : _isWide ? DirectColor().Color.ToArgb() : _random.Next(limit);
            cells[i] = cell;
        }

        return (width, height, bits, cells);
    }

    private void AdjustDirections(BeginTileArray tiles) =>
        (tiles.CellPathDirection, tiles.LineProgressionDirection) = (Choice(0, 90, 180, 270), Choice(90, 270));

    private void AdjustKnots(NonUniformBSpline curve)
    {
        curve.Order = _random.Next(2, 6);
        curve.Knots = Repeat(curve.Order + curve.ControlPoints.Count, Real);
    }

    private void AdjustCalibration(ColourCalibration calibration)
    {
        (calibration.ReferenceWhite, calibration.Matrix) = (Repeat(3, Real), Repeat(9, Real));
        (calibration.RedComponents, calibration.RedValues) = (Repeat(4, Byte), Repeat(4, Real));
        (calibration.GreenComponents, calibration.GreenValues) = (Repeat(4, Byte), Repeat(4, Real));
        (calibration.BlueComponents, calibration.BlueValues) = (Repeat(4, Byte), Repeat(4, Real));
        (calibration.GridLocations, calibration.GridValues) = (Repeat(8, Byte), Repeat(6, Real));
    }

    private int Byte() => _random.Next(256);

    private T Choice<T>(params T[] choices) => choices[_random.Next(choices.Length)];

    private object Member(Type type)
    {
        Array members = Enum.GetValues(type);
        return members.GetValue(_random.Next(members.Length))!;
    }

    private T Member<T>()
        where T : struct, Enum => (T)Member(typeof(T));

    private List<T> List<T>(Func<T> one) => Repeat(_random.Next(6), one);

    private static List<T> Repeat<T>(int count, Func<T> one) => [.. Enumerable.Range(0, count).Select(_ => one())];
}
