using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The line and edge types (ISO/IEC 8632-1, 7.7.2; indexes above 5 from the register of graphical items).
/// Negative indexes are private.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DashType
{
    /// <summary>Solid.</summary>
    Solid = 1,

    /// <summary>Dashed.</summary>
    Dash = 2,

    /// <summary>Dotted.</summary>
    Dot = 3,

    /// <summary>Dash-dot.</summary>
    DashDot = 4,

    /// <summary>Dash-dot-dot.</summary>
    DashDotDot = 5,

    /// <summary>A single arrow.</summary>
    SingleArrow = 6,

    /// <summary>A single dot at the end.</summary>
    SingleDot = 7,

    /// <summary>A double arrow.</summary>
    DoubleArrow = 8,

    /// <summary>Stitch line.</summary>
    Stitch = 9,

    /// <summary>Chain line: a long dash and a short one.</summary>
    Chain = 10,

    /// <summary>Centre line.</summary>
    Center = 11,

    /// <summary>Hidden line.</summary>
    Hidden = 12,

    /// <summary>Phantom line: a long dash and two short ones.</summary>
    Phantom = 13,

    /// <summary>Break line, freehand.</summary>
    BreakStyle1 = 14,

    /// <summary>Break line, zigzag.</summary>
    BreakStyle2 = 15,
}
