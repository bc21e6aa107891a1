using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The line and edge caps.</summary>
[PythonEnum(EnumKind.Integer)]
public enum LineCapIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>Butt: flat at the end of the line.</summary>
    Butt = 2,

    /// <summary>Round: a semicircle.</summary>
    Round = 3,

    /// <summary>Projecting square: flat, half the width beyond the end.</summary>
    ProjectingSquare = 4,

    /// <summary>Triangle.</summary>
    Triangle = 5,
}
