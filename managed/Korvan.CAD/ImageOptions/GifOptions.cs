using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for GIF files with one palette for all frames. Pixels that are less than half opaque become
/// transparent.</summary>
public class GifOptions : ImageOptionsBase
{
    private int _maxColors = 256;
    private int _frameTime = 1000;
    private int _loopCount;

    /// <summary>Creates options with default values.</summary>
    public GifOptions()
        : base(FileFormat.Gif)
    {
    }

    /// <summary>Gets or sets the maximum number of colours in the palette, 2 to 256.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public int MaxColors
    {
        get => _maxColors;
        set
        {
            Verify.InRange(value, 2, 256);
            _maxColors = value;
        }
    }

    /// <summary>Gets or sets how colours are chosen if <see cref="ImageOptionsBase.Palette"/> is not set.</summary>
    public ColorQuantizationMethod PaletteMethod { get; set; } = ColorQuantizationMethod.MedianCut;

    /// <summary>Gets or sets the dithering method for colours that the palette lacks.</summary>
    public DitheringMethods Dithering { get; set; } = DitheringMethods.None;

    /// <summary>Gets or sets whether rows are interlaced, so that readers can show a coarse image early.</summary>
    public bool Interlaced { get; set; }

    /// <summary>Gets or sets the delay of each frame in milliseconds, 0 to 655350; stored in hundredths of a
    /// second.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public int FrameTime
    {
        get => _frameTime;
        set
        {
            Verify.InRange(value, 0, 655350);
            _frameTime = value;
        }
    }

    /// <summary>Gets or sets the number of repetitions of the animation, 0 (endless) to 65535.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public int LoopCount
    {
        get => _loopCount;
        set
        {
            Verify.InRange(value, 0, 65535);
            _loopCount = value;
        }
    }

    /// <summary>Gets or sets which pages are written; <see langword="null"/> for all pages.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    internal override bool UsesPalette => true;
}
