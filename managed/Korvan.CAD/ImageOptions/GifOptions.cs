using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes GIF with one palette for all frames. A pixel less than half opaque becomes transparent.</summary>
public class GifOptions : ImageOptionsBase
{
    private int _maxColors = 256;
    private int _frameTime = 1000;
    private int _loopCount = 0;

    /// <summary>Creates options with their defaults.</summary>
    public GifOptions()
        : base(FileFormat.Gif)
    {
    }

    /// <summary>Gets or sets how many colours the palette has at most, 2 to 256.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int MaxColors
    {
        get => _maxColors;
        set
        {
            Verify.InRange(value, 2, 256);
            _maxColors = value;
        }
    }

    /// <summary>Gets or sets how the colours are chosen where <see cref="ImageOptionsBase.Palette"/> gives none.</summary>
    public ColorQuantizationMethod PaletteMethod { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets or sets how colours are brought to the palette.</summary>
    public DitheringMethods Dithering { get; set; } = DitheringMethods.None;

    /// <summary>Gets or sets whether lines stand in the order that shows the whole picture soon.</summary>
    public bool Interlaced { get; set; }

    /// <summary>Gets or sets how long a frame is shown, in milliseconds, 0 to 655350; stored in hundredths of a second.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int FrameTime
    {
        get => _frameTime;
        set
        {
            Verify.InRange(value, 0, 655350);
            _frameTime = value;
        }
    }

    /// <summary>Gets or sets how often frames are repeated, 0 (for ever) to 65535.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int LoopCount
    {
        get => _loopCount;
        set
        {
            Verify.InRange(value, 0, 65535);
            _loopCount = value;
        }
    }

    /// <summary>Gets or sets which pages are written; nothing for all of them.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    internal override bool UsesPalette => true;
}
