using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Quarter turns, clockwise, and mirrorings after the turn.</summary>
[PythonEnum(EnumKind.Integer)]
public enum RotateFlipType
{
    /// <summary>As it is.</summary>
    RotateNoneFlipNone = 0,

    /// <summary>A quarter turn.</summary>
    Rotate90FlipNone = 1,

    /// <summary>Half a turn.</summary>
    Rotate180FlipNone = 2,

    /// <summary>Three quarters of a turn.</summary>
    Rotate270FlipNone = 3,

    /// <summary>Left and right change places.</summary>
    RotateNoneFlipX = 4,

    /// <summary>A quarter turn, then left and right change places.</summary>
    Rotate90FlipX = 5,

    /// <summary>Up and down change places.</summary>
    RotateNoneFlipY = 6,

    /// <summary>A quarter turn, then up and down change places.</summary>
    Rotate90FlipY = 7,

    /// <summary>Half a turn, by two mirrorings.</summary>
    RotateNoneFlipXY = 2,

    /// <summary>Half a turn, then left and right change places.</summary>
    Rotate180FlipX = 6,

    /// <summary>Half a turn, then up and down change places.</summary>
    Rotate180FlipY = 4,

    /// <summary>Three quarters of a turn, then left and right change places.</summary>
    Rotate270FlipX = 7,

    /// <summary>Three quarters of a turn, then up and down change places.</summary>
    Rotate270FlipY = 5,

    /// <summary>A quarter turn, then half a turn.</summary>
    Rotate90FlipXY = 3,

    /// <summary>Half a turn twice.</summary>
    Rotate180FlipXY = 0,

    /// <summary>Three quarters of a turn, then half a turn.</summary>
    Rotate270FlipXY = 1,
}
