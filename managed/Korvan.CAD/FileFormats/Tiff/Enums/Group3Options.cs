using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How facsimile lines are coded; the bits of tags 292 and 293.</summary>
[PythonEnum(EnumKind.Flag)]
[Flags]
public enum Group3Options
{
    /// <summary>Each line for itself.</summary>
    None = 0,

    /// <summary>Lines are coded by their differences to the line above.</summary>
    TwoDimensional = 1,

    /// <summary>Stretches may stand uncompressed.</summary>
    UncompressedMode = 2,

    /// <summary>Ends of lines fall on bytes.</summary>
    FillBits = 4,
}
