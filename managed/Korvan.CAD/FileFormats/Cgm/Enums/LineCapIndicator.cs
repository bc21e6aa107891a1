using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How lines end.</summary>
[PythonEnum(EnumKind.Integer)]
public enum LineCapIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>Straight, at the end of the line.</summary>
    Butt = 2,

    /// <summary>By half a circle.</summary>
    Round = 3,

    /// <summary>Straight, half the width behind the end.</summary>
    ProjectingSquare = 4,

    /// <summary>By a triangle.</summary>
    Triangle = 5,
}
