using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>
/// How elements are coded, as the elements before them set it. Reader and writer each have one and apply every command
/// to it, so both always agree. The initial values are the defaults of ISO/IEC 8632-3 and 8632-1.
/// </summary>
internal sealed class CodingState
{
    internal const long MaxRunCells = 1 << 27;

    /// <summary>Gets or sets how many more cells runs may produce.</summary>
    internal long RunCellsLeft { get; set; } = MaxRunCells;

    /// <summary>Gets or sets the bits of an integer: 8, 16, 24 or 32.</summary>
    internal int IntegerBits { get; set; } = 16;

    internal Precision Real { get; set; } = Precision.Fixed32;

    internal int IndexBits { get; set; } = 16;

    internal int NameBits { get; set; } = 16;

    /// <summary>Gets or sets the bits of a colour component.</summary>
    internal int ColorBits { get; set; } = 8;

    internal int ColorIndexBits { get; set; } = 8;

    internal ColourModel.Model ColorModel { get; set; } = ColourModel.Model.Rgb;

    /// <summary>Gets or sets the components of minimum intensity; three, or four for CMYK.</summary>
    internal double[] ColorLow { get; set; } = [0, 0, 0, 0];

    /// <summary>Gets or sets the components of maximum intensity.</summary>
    internal double[] ColorHigh { get; set; } = [255, 255, 255, 255];

    /// <summary>Gets or sets the scales of the components of CIE colours and of RGB-related ones; the default maps 8
    /// bits to the ranges of L*a*b*.</summary>
    internal double[] ColorScale { get; set; } = [100 / 255.0, 1, 1];

    /// <summary>Gets or sets the offsets of the scaled components.</summary>
    internal double[] ColorOffset { get; set; } = [0, -128, -128];

    /// <summary>Gets or sets the character sets, which character set indexes refer to from 1: the type of each (4 for a
    /// complete code) and the tail of its designation sequence.</summary>
    internal IReadOnlyList<(int Kind, string Tail)> CharacterSets { get; set; } = [];

    internal VdcType.Type VdcType { get; set; } = Commands.VdcType.Type.Integer;

    internal DeviceViewportSpecificationMode.Mode ViewportMode { get; set; }

    /// <summary>Gets or sets what pictures and the replacement of defaults change; each picture resets it.</summary>
    internal PictureCoding Picture { get; set; } = new();

    /// <summary>Gets or sets the initial coding of each picture.</summary>
    internal PictureCoding Defaults { get; set; } = new();

    /// <summary>Gets or sets whether elements replace defaults, which apply to the pictures that follow.</summary>
    internal bool ReplacesDefaults { get; set; }

    /// <summary>Gets the coding that elements change at this place.</summary>
    internal PictureCoding Current => ReplacesDefaults ? Defaults : Picture;

    internal bool HasIndexedColors => Current.ColorSelection == ColourSelectionMode.Type.Indexed;

    internal bool HasRealCoordinates => VdcType == Commands.VdcType.Type.Real;

    /// <summary>Gets or sets whether a coordinate has a fraction although the type of coordinates is integer.</summary>
    internal bool HasFractions { get; set; }

    internal int ColorComponents => ColorModel == ColourModel.Model.Cmyk ? 4 : 3;

    /// <summary>Resets what a metafile before this one in the same file changed.</summary>
    internal void BeginMetafile()
    {
        var fresh = new CodingState();
        (IntegerBits, Real, IndexBits, NameBits) = (fresh.IntegerBits, fresh.Real, fresh.IndexBits, fresh.NameBits);
        (ColorBits, ColorIndexBits, ColorModel) = (fresh.ColorBits, fresh.ColorIndexBits, fresh.ColorModel);
        (ColorLow, ColorHigh) = (fresh.ColorLow, fresh.ColorHigh);
        (ColorScale, ColorOffset) = (fresh.ColorScale, fresh.ColorOffset);
        CharacterSets = fresh.CharacterSets;
        (VdcType, ViewportMode, HasFractions) = (fresh.VdcType, fresh.ViewportMode, false);
        (Picture, Defaults) = (fresh.Picture, fresh.Defaults);
    }

    /// <summary>Resets what the last picture changed.</summary>
    internal void BeginPicture() => Picture = Defaults with { };
}

/// <summary>The part of the coding that is specific to a picture.</summary>
internal sealed record PictureCoding
{
    internal ColourSelectionMode.Type ColorSelection { get; set; } = ColourSelectionMode.Type.Indexed;

    internal SpecificationMode LineWidthMode { get; set; } = SpecificationMode.Scaled;

    internal SpecificationMode MarkerSizeMode { get; set; } = SpecificationMode.Scaled;

    internal SpecificationMode EdgeWidthMode { get; set; } = SpecificationMode.Scaled;

    internal SpecificationMode InteriorStyleMode { get; set; } = SpecificationMode.Absolute;

    internal int CharacterSet { get; set; } = 1;

    internal int AlternateCharacterSet { get; set; } = 1;

    internal int VdcIntegerBits { get; set; } = 16;

    internal Precision VdcReal { get; set; } = Precision.Fixed32;
}
