using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A text that is kept inside a parallelogram.</summary>
public sealed class RestrictedText : TextCommand
{
    /// <summary>Creates an empty text at the origin.</summary>
    public RestrictedText()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.RestrictedText)
    {
    }

    /// <summary>Gets or sets the length of the parallelogram along the text, in units of the coordinates.</summary>
    public double ExtentWidth { get; set; }

    /// <summary>Gets or sets the length of the parallelogram across the text.</summary>
    public double ExtentHeight { get; set; }

    /// <summary>Gets or sets the point that the text is aligned to.</summary>
    public CgmPoint Position { get; set; } = new();

    internal override void Exchange(ParameterExchange x)
    {
        ExtentWidth = x.Vdc(ExtentWidth);
        ExtentHeight = x.Vdc(ExtentHeight);
        Position = x.Point(Position);
        base.Exchange(x);
    }
}
