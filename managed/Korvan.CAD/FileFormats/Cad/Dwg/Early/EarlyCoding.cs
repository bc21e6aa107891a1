namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>How the value of a field is stored in a file before release 13.</summary>
internal enum EarlyCoding
{
    /// <summary>A byte.</summary>
    Byte,

    /// <summary>An integer of two bytes.</summary>
    Short,

    /// <summary>A number.</summary>
    Real,

    /// <summary>An angle in radians.</summary>
    Angle,

    /// <summary>X and Y of a point that has no Z.</summary>
    Plane,

    /// <summary>X and Y; Z is the elevation of the record.</summary>
    Flat,

    /// <summary>X and Y, and Z if the record has the option; otherwise it is the elevation.</summary>
    Raised,

    /// <summary>X, Y and Z.</summary>
    Spatial,

    /// <summary>X, Y and Z from release 10 on; X and Y before, and where the record has the flag of an
    /// elevation.</summary>
    Point,

    /// <summary>The Z of all points before.</summary>
    Height,

    /// <summary>No bytes: the elevation of the record as a Z.</summary>
    Elevation,

    /// <summary>A string in a field of fixed width, which ends with the first zero.</summary>
    Fixed,

    /// <summary>A string after its length in two bytes.</summary>
    Counted,

    /// <summary>A list of numbers of fixed width, whose length the record states with group code 73.</summary>
    Dashes,

    /// <summary>The colours of all layers, which have numbers instead of names.</summary>
    LayerColors,

    /// <summary>The index of a layer.</summary>
    Layer,

    /// <summary>The index of a line type.</summary>
    LineType,

    /// <summary>The index of a text style.</summary>
    Style,

    /// <summary>The index of a text style in a single byte.</summary>
    StyleByte,

    /// <summary>The index of a block.</summary>
    Block,

    /// <summary>The index of a dimension style.</summary>
    DimensionStyle,

    /// <summary>The index of a coordinate system.</summary>
    CoordinateSystem,

    /// <summary>The index of a code page.</summary>
    CodePage,

    /// <summary>A day and the milliseconds of it, in four bytes each.</summary>
    Date,

    /// <summary>A handle of eight bytes, highest first.</summary>
    Handle,

    /// <summary>Four bytes of a position.</summary>
    Offset,

    /// <summary>The place of a table.</summary>
    Table,

    /// <summary>Bytes without a known meaning.</summary>
    Unused,
}
