using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether drawing is cut at the clip rectangle.</summary>
public sealed class ClipIndicator : Command
{
    /// <summary>Creates the element with its default.</summary>
    public ClipIndicator()
        : base(ClassCode.ControlElement, (int)ControlElement.ClipIndicator)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="isClipping">Whether drawing is cut.</param>
    public ClipIndicator(bool isClipping)
        : this()
    {
        IsClipping = isClipping;
    }

    /// <summary>Gets or sets whether drawing is cut.</summary>
    public bool IsClipping { get; set; } = true;

    internal override void Exchange(ParameterExchange x) => IsClipping = x.Flag(IsClipping);
}
