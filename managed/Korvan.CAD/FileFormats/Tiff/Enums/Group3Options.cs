using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Options of CCITT group 3 and 4 compression; the bits of tags 292 and 293.</summary>
[PythonEnum(EnumKind.Flag)]
[Flags]
public enum Group3Options
{
    /// <summary>One-dimensional coding: each line for itself.</summary>
    None = 0,

    /// <summary>Two-dimensional coding: lines by their differences from the line above.</summary>
    TwoDimensional = 1,

    /// <summary>Uncompressed mode may be used.</summary>
    UncompressedMode = 2,

    /// <summary>End-of-line codes are aligned to bytes.</summary>
    FillBits = 4,
}
