using System;
using Korvan.CAD.FileFormats.Cad.CadTables;
using static Korvan.CAD.FileFormats.Cad.Dwg.Early.EarlyField;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>A symbol table of fixed records.</summary>
/// <param name="Name">The name.</param>
/// <param name="Create">Creates the object of a record.</param>
/// <param name="Fields">The fields after properties and name, in the order of files; a record that is too short for a
/// field ends before it.</param>
internal sealed record EarlyTableType(
    string Name, Func<CadSymbolTableGroupCodes> Create, params EarlyField[] Fields);

/// <summary>The symbol tables of files before release 13.</summary>
internal static class EarlyTableFields
{
    /// <summary>The group code of the properties of a record.</summary>
    internal const int FlagsCode = 70;

    /// <summary>The group code of the name of a record.</summary>
    internal const int NameCode = 2;

    /// <summary>The width of names.</summary>
    internal const int NameWidth = 32;

    private const int FileNameWidth = 64;
    private const int DashCount = 12;

    /// <summary>What all records begin with.</summary>
    internal static readonly EarlyField[] Common =
        [Byte(FlagsCode), Fixed(NameCode, NameWidth), Unused(sizeof(short)).From(EarlyRelease.R11)];

    internal static readonly EarlyTableType Blocks =
        new("BLOCK", static () => new CadBlockTableObject());

    internal static readonly EarlyTableType Layers = new(
        "LAYER", static () => new CadLayerTable(), Short(62), new EarlyField(EarlyCoding.LineType, 6));

    internal static readonly EarlyTableType Styles = new(
        "STYLE",
        static () => new CadStyleTableObject(),
        Real(40), Real(41), Angle(50), Byte(71), Real(42), Fixed(3, FileNameWidth),
        Fixed(4, FileNameWidth).From(EarlyRelease.R24));

    internal static readonly EarlyTableType LineTypes = new(
        "LTYPE",
        static () => new CadLineTypeTableObject(),
        Fixed(3, 48), Byte(72), Byte(73), Real(40), new EarlyField(EarlyCoding.Dashes, 49, DashCount));

    internal static readonly EarlyTableType Views = new(
        "VIEW",
        static () => new CadViewTableObject(),
        Real(40), Plane(10), Real(41), Spatial(11), Unused(sizeof(short)), Spatial(12).From(EarlyRelease.R10),
        Short(71).From(EarlyRelease.R10), Real(42).From(EarlyRelease.R10), Real(43).From(EarlyRelease.R10),
        Real(44).From(EarlyRelease.R10), Angle(50).From(EarlyRelease.R10));

    internal static readonly EarlyTableType CoordinateSystems =
        new("UCS", static () => new CadUcsTableObject(), Spatial(10), Spatial(11), Spatial(12));

    internal static readonly EarlyTableType Viewports = new(
        "VPORT",
        static () => new CadVportTableObject(),
        Plane(10), Plane(11), Spatial(17), Spatial(16), Angle(51), Real(40), Plane(12), Real(41), Real(42), Real(43),
        Real(44), Short(71), Short(72), Short(73), Short(74), Short(75), Short(76), Short(77), Short(78), Angle(50),
        Plane(13), Plane(14), Plane(15));

    internal static readonly EarlyTableType Applications = new("APPID", static () => new CadAppIdTableObject());

    internal static readonly EarlyTableType DimensionStyles = new(
        "DIMSTYLE",
        static () => new CadDimensionStyleTable(),
        Real(40), Real(41), Real(42), Real(43), Real(44), Real(45), Real(46), Real(47), Real(48), Real(140), Real(141),
        Real(142), Real(143), Real(144), Real(145), Byte(71), Byte(72), Byte(73), Byte(74), Byte(75), Byte(76),
        Byte(77), Byte(78), Byte(170), Byte(171), Byte(172), Byte(173), Byte(174), Byte(175), Fixed(3, 16),
        Fixed(4, 16), Fixed(5, 33), Fixed(6, 33), Fixed(7, 32), Short(176), Short(177), Short(178), Unused(1),
        Real(146), Real(147));

    /// <summary>The tables in the order in which they are read: blocks last, since their entities are read with
    /// them.</summary>
    internal static readonly EarlyTableType[] All =
        [LineTypes, Layers, Styles, Views, CoordinateSystems, Viewports, Applications, DimensionStyles, Blocks];

    /// <summary>Determines whether a record was erased.</summary>
    /// <param name="fields">What the record begins with.</param>
    internal static bool IsErased(EarlyFieldReader fields)
    {
        const int erased = 128;
        return (fields.Peek(FlagsCode) & erased) != 0 && fields.PeekText(NameCode).Length == 0;
    }
}
