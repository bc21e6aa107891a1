using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Draws a segment here.</summary>
public sealed class CopySegment : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public CopySegment()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.CopySegment)
    {
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets how much of X goes into X.</summary>
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets how much of Y goes into X.</summary>
    public double ShearX { get; set; }

    /// <summary>Gets or sets how much of X goes into Y.</summary>
    public double ShearY { get; set; }

    /// <summary>Gets or sets how much of Y goes into Y.</summary>
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the way along X, in units of the coordinates.</summary>
    public double TranslationX { get; set; }

    /// <summary>Gets or sets the way along Y.</summary>
    public double TranslationY { get; set; }

    /// <summary>Gets or sets whether the transformation of the segment itself is applied first.</summary>
    public bool AppliesSegmentTransformation { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        SegmentIdentifier = x.Name(SegmentIdentifier);
        ScaleX = x.Real(ScaleX);
        ShearX = x.Real(ShearX);
        ShearY = x.Real(ShearY);
        ScaleY = x.Real(ScaleY);
        TranslationX = x.Vdc(TranslationX);
        TranslationY = x.Vdc(TranslationY);
        AppliesSegmentTransformation = x.Enumeration(AppliesSegmentTransformation ? 1 : 0, SharedWords.NoYes) != 0;
    }
}
