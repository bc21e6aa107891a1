using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What of lines is cut at the clip rectangle.</summary>
public sealed class LineClipping : Command
{
    /// <summary>Creates the element with its default.</summary>
    public LineClipping()
        : base(ClassCode.ControlElement, (int)ControlElement.LineClipping)
    {
    }

    /// <summary>Gets or sets what is cut.</summary>
    public ClippingMode Mode { get; set; }

    internal override void Exchange(ParameterExchange x) => Mode = x.Enumeration(Mode, SharedWords.Clipping);
}
