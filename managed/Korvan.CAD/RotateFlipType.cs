using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Clockwise rotations by multiples of 90 degrees, followed by flips.</summary>
[PythonEnum(EnumKind.Integer)]
public enum RotateFlipType
{
    /// <summary>No rotation and no flip.</summary>
    RotateNoneFlipNone = 0,

    /// <summary>Rotation by 90 degrees.</summary>
    Rotate90FlipNone = 1,

    /// <summary>Rotation by 180 degrees.</summary>
    Rotate180FlipNone = 2,

    /// <summary>Rotation by 270 degrees.</summary>
    Rotate270FlipNone = 3,

    /// <summary>Horizontal flip.</summary>
    RotateNoneFlipX = 4,

    /// <summary>Rotation by 90 degrees, then horizontal flip.</summary>
    Rotate90FlipX = 5,

    /// <summary>Vertical flip.</summary>
    RotateNoneFlipY = 6,

    /// <summary>Rotation by 90 degrees, then vertical flip.</summary>
    Rotate90FlipY = 7,

    /// <summary>Horizontal and vertical flip, which is rotation by 180 degrees.</summary>
    RotateNoneFlipXY = 2,

    /// <summary>Rotation by 180 degrees, then horizontal flip.</summary>
    Rotate180FlipX = 6,

    /// <summary>Rotation by 180 degrees, then vertical flip.</summary>
    Rotate180FlipY = 4,

    /// <summary>Rotation by 270 degrees, then horizontal flip.</summary>
    Rotate270FlipX = 7,

    /// <summary>Rotation by 270 degrees, then vertical flip.</summary>
    Rotate270FlipY = 5,

    /// <summary>Rotation by 90 degrees, then horizontal and vertical flip.</summary>
    Rotate90FlipXY = 3,

    /// <summary>Rotation by 180 degrees, then horizontal and vertical flip, which is no change.</summary>
    Rotate180FlipXY = 0,

    /// <summary>Rotation by 270 degrees, then horizontal and vertical flip.</summary>
    Rotate270FlipXY = 1,
}
