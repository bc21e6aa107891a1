using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Dxf;
using static Korvan.CAD.FileFormats.Cad.Dwg.Early.EarlyField;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>A type of entity records.</summary>
/// <param name="Name">The name in messages.</param>
/// <param name="Create">Creates the entity from what its fields say; null for records that are no entities.</param>
/// <param name="Fields">What follows the fields that all entities have.</param>
internal sealed record EarlyEntityType(
    string Name, Func<EarlyFieldReader, CadEntityBase>? Create, params EarlyField[] Fields);

/// <summary>The types of entity records by their numbers, with their fields in the order of files.</summary>
internal static class EarlyEntityFields
{
    internal const int Repeat = 5;
    internal const int EndRepeat = 6;
    internal const int Load = 10;
    internal const int Block = 12;
    internal const int EndBlock = 13;
    internal const int Jump = 18;

    /// <summary>The code that stands for the number of a shape, which text files do not have.</summary>
    internal const int ShapeNumber = -1;

    /// <summary>The code that stands for the style of a shape.</summary>
    internal const int ShapeStyle = -2;

    private const int DimensionPoint = 15;

    private static readonly EarlyField[] Corners = [Flat(10), Flat(11), Flat(12), Flat(13), .. Extruded(1, 2)];

    private static readonly EarlyField[] AttributeOptions =
    [
        Angle(50).If(2), Real(41).If(4), Angle(51).If(8), StyleByte(7).If(16), Byte(71).If(32), Byte(72).If(64),
        Flat(11).If(128), Spatial(210).If(256), Byte(74).If(512),
    ];

    private static readonly EarlyEntityType?[] Types =
    [
        null,
        new("LINE", static _ => new CadLine(), Point(10), Point(11), Spatial(210).If(1)),
        new("POINT", static _ => new CadPoint(), Point(10), Spatial(210).If(1), Angle(50).If(2)),
        new("CIRCLE", static _ => new CadCircle(), [Flat(10), Real(40), .. Extruded(1, 2)]),
        new("SHAPE", static _ => new CadShape(),
            Flat(10), Real(40), Angle(50).UpTo(EarlyRelease.R14), Short(ShapeNumber).UpTo(EarlyRelease.R14),
            Byte(ShapeNumber).From(EarlyRelease.R20), Angle(50).If(1), StyleByte(ShapeStyle).If(2),
            Real(41).If(4), Angle(51).If(8)),
        new("REPEAT", null),
        new("ENDREP", static _ => new CadInsertObject(), Short(70), Short(71), Real(44), Real(45)),
        new("TEXT", static _ => new CadText(),
            Flat(10), Real(40), Angle(50).UpTo(EarlyRelease.R14), Counted(1), Angle(50).If(1), Real(41).If(2),
            Angle(51).If(4), StyleByte(7).If(8), Byte(71).If(16), Byte(72).If(32), Flat(11).If(64),
            Spatial(210).If(128), Byte(73).If(256)),
        new("ARC", static _ => new CadArc(), [Flat(10), Real(40), Angle(50), Angle(51), .. Extruded(1, 2)]),
        new("TRACE", static _ => new CadTrace(), Corners),
        new("LOAD", null, Counted(1)),
        new("SOLID", static _ => new CadSolid(), Corners),
        new("BLOCK", static _ => new CadBlockEntity(),
            Counted(2).UpTo(EarlyRelease.R14), Flat(10), Counted(1).If(2), Counted(2).If(4)),
        new("ENDBLK", static _ => new CadEndBlock()),
        new("INSERT", static _ => new CadInsertObject(),
            Counted(2).UpTo(EarlyRelease.R14), BlockName(2).From(EarlyRelease.R20), Flat(10),
            Real(41).UpTo(EarlyRelease.R14), Real(42).UpTo(EarlyRelease.R14), Angle(50).UpTo(EarlyRelease.R14),
            Real(41).If(1), Real(42).If(2), Angle(50).If(4), Real(43).If(8), Short(70).If(16), Short(71).If(32),
            Real(44).If(64), Real(45).If(128), Spatial(210).If(256)),
        new("ATTDEF", static _ => new CadAttDef(),
            [Flat(10), Real(40), Counted(1), Counted(3), Counted(2), Byte(70), .. AttributeOptions]),
        new("ATTRIB", static _ => new CadAttrib(),
            [Flat(10), Real(40), Counted(1), Counted(2), Byte(70), .. AttributeOptions]),
        new("SEQEND", static _ => new CadSeqend(), Unused(sizeof(int))),
        new("JUMP", null, new EarlyField(EarlyCoding.Offset, 0)),
        new("POLYLINE", static fields => DxfObjectReader.CreatePolyline(fields.Peek(70)),
            new EarlyField(EarlyCoding.Elevation, 10), Byte(70).If(1), Real(40).If(2), Real(41).If(4),
            Spatial(210).If(8), Short(71).If(16), Short(72).If(32), Short(73).If(64), Short(74).If(128),
            Short(75).If(256)),
        new("VERTEX", static _ => new Cad2DVertex(),
            Flat(10).Unless(0x4000), Real(40).If(1), Real(41).If(2), Real(42).If(4), Byte(70).If(8), Angle(50).If(16),
            Short(71).If(32), Short(72).If(64), Short(73).If(128), Short(74).If(256)),
        new("3DLINE", static _ => new CadLine(),
            Raised(10, 1), Raised(11, 2), Point(10).From(EarlyRelease.R10), Point(11).From(EarlyRelease.R10),
            Spatial(210).If(1).From(EarlyRelease.R10)),
        new("3DFACE", static _ => new Cad3DFace(),
            Raised(10, 1), Raised(11, 2), Raised(12, 4), Raised(13, 8), Point(10).From(EarlyRelease.R10),
            Point(11).From(EarlyRelease.R10), Point(12).From(EarlyRelease.R10), Point(13).From(EarlyRelease.R10),
            Short(70).If(1).From(EarlyRelease.R10)),
        new("DIMENSION", static fields => DxfObjectReader.CreateDimension(fields.Peek(70)),
            BlockName(2), Spatial(10).From(EarlyRelease.R10), Flat(10).UpTo(EarlyRelease.R9), Flat(11), Flat(12).If(1),
            Byte(70).If(2), Counted(1).If(4), Measured(13, 8), MeasuredFlat(13, 8), Measured(14, 16),
            MeasuredFlat(14, 16), Measured(DimensionPoint, 32), MeasuredFlat(DimensionPoint, 32), Flat(16).If(64),
            Real(40).If(128), Angle(50).If(256), Angle(52).If(512), Angle(53).If(1024), Angle(51).If(2048),
            Spatial(210).If(0x4000), new EarlyField(EarlyCoding.DimensionStyle, 3).If(0x8000)),
        new("VIEWPORT", static _ => new CadViewport(), Spatial(10), Real(40), Real(41), Short(69)),
    ];

    /// <summary>Returns the type of a number; null for a number that no type has.</summary>
    internal static EarlyEntityType? Of(int number) => number < Types.Length ? Types[number] : null;

    private static EarlyField[] Extruded(int direction, int height) =>
        [Spatial(210).If(direction), new EarlyField(EarlyCoding.Height, 0).If(height)];

    private static EarlyField StyleByte(int code) => new(EarlyCoding.StyleByte, code);

    private static EarlyField BlockName(int code) => new(EarlyCoding.Block, code);

    private static EarlyField Raised(int code, int option) =>
        new EarlyField(EarlyCoding.Raised, code).If(option).UpTo(EarlyRelease.R9);

    private static EarlyField Measured(int code, int option) => Spatial(code).If(option).From(EarlyRelease.R10);

    private static EarlyField MeasuredFlat(int code, int option) => Flat(code).If(option).UpTo(EarlyRelease.R9);
}
