using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How the dashes of a line end.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DashCapIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>Straight, at the end of the dash.</summary>
    Butt = 2,

    /// <summary>As the line itself ends.</summary>
    Match = 3,
}
