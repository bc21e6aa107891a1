using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of texts.</summary>
public sealed class TextRepresentation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public TextRepresentation()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.TextRepresentation)
    {
    }

    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the place of the font in the font list, from 1.</summary>
    public int FontIndex { get; set; } = 1;

    /// <summary>Gets or sets how exactly texts are placed.</summary>
    public TextPrecisionType Precision { get; set; }

    /// <summary>Gets or sets the gap between characters, in parts of their height.</summary>
    public double Spacing { get; set; }

    /// <summary>Gets or sets how much wider characters are than the font has them.</summary>
    public double ExpansionFactor { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    public CgmColor Color { get; set; } = new(1);

    internal override void Exchange(ParameterExchange x)
    {
        BundleIndex = x.Index(BundleIndex);
        FontIndex = x.Index(FontIndex);
        Precision = x.Enumeration(Precision, TextPrecision.Words);
        Spacing = x.Real(Spacing);
        ExpansionFactor = x.Real(ExpansionFactor);
        Color = x.Color(Color);
    }
}
