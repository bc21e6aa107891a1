using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The dash caps.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DashCapIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>Butt: flat at the end of the dash.</summary>
    Butt = 2,

    /// <summary>Match: the same as the line cap.</summary>
    Match = 3,
}
