using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How a segment is moved, turned and scaled.</summary>
public sealed class SegmentTransformation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public SegmentTransformation()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.SegmentTransformation)
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

    internal override void Exchange(ParameterExchange x)
    {
        SegmentIdentifier = x.Name(SegmentIdentifier);
        ScaleX = x.Real(ScaleX);
        ShearX = x.Real(ShearX);
        ShearY = x.Real(ShearY);
        ScaleY = x.Real(ScaleY);
        TranslationX = x.Vdc(TranslationX);
        TranslationY = x.Vdc(TranslationY);
    }
}
