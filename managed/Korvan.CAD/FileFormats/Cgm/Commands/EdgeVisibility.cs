using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether areas have edges.</summary>
public sealed class EdgeVisibility : Command
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeVisibility()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeVisibility)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="isVisible">Whether areas have edges.</param>
    public EdgeVisibility(bool isVisible)
        : this()
    {
        IsVisible = isVisible;
    }

    /// <summary>Gets or sets whether areas have edges.</summary>
    public bool IsVisible { get; set; }

    internal override void Exchange(ParameterExchange x) => IsVisible = x.Flag(IsVisible);
}
