using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The kind of a dimension; the flags from 32 on are added to a kind.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadDimensionType
{
    /// <summary>Along a direction.</summary>
    Rotated = 0,

    /// <summary>Along the measured points.</summary>
    Aligned = 1,

    /// <summary>Between two lines.</summary>
    Angular = 2,

    /// <summary>Of a diameter.</summary>
    Diameter = 3,

    /// <summary>Of a radius.</summary>
    Radius = 4,

    /// <summary>Between three points.</summary>
    Angular3Point = 5,

    /// <summary>Of a coordinate.</summary>
    Ordinate = 6,

    /// <summary>The block of the dimension is its own.</summary>
    BlockOwned = 32,

    /// <summary>The coordinate is X.</summary>
    OrdinateX = 64,

    /// <summary>The text was placed by hand.</summary>
    UserPositioned = 128,
}
