using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The dashes of lines and edges (ISO/IEC 8632-1, 7.7.2; numbers above 5 from the register of graphical
/// items). Negative numbers belong to the program that wrote the file.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DashType
{
    /// <summary>No gaps.</summary>
    Solid = 1,

    /// <summary>Dashes.</summary>
    Dash = 2,

    /// <summary>Dots.</summary>
    Dot = 3,

    /// <summary>A dash and a dot.</summary>
    DashDot = 4,

    /// <summary>A dash and two dots.</summary>
    DashDotDot = 5,

    /// <summary>A line with an arrow at its end.</summary>
    SingleArrow = 6,

    /// <summary>A line with a dot at its end.</summary>
    SingleDot = 7,

    /// <summary>A line with an arrow at each end.</summary>
    DoubleArrow = 8,

    /// <summary>Stitches.</summary>
    Stitch = 9,

    /// <summary>A long dash and a short one.</summary>
    Chain = 10,

    /// <summary>A line through a centre.</summary>
    Center = 11,

    /// <summary>A hidden edge.</summary>
    Hidden = 12,

    /// <summary>A line of something that is elsewhere: a long dash and two short ones.</summary>
    Phantom = 13,

    /// <summary>A break, drawn by hand.</summary>
    BreakStyle1 = 14,

    /// <summary>A break, drawn as a zigzag.</summary>
    BreakStyle2 = 15,
}
