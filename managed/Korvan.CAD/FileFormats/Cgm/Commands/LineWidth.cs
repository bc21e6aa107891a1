using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of lines.</summary>
public sealed class LineWidth : Command
{
    /// <summary>Creates the width 1.</summary>
    public LineWidth()
        : base(Enums.ClassCode.AttributeElement, (int)AttributeElement.LineWidth)
    {
    }

    /// <summary>Gets or sets the width, not negative, in what the mode of the picture says.</summary>
    public double Width { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Width = x.Size(Width, x.State.Current.LineWidthMode);
}
