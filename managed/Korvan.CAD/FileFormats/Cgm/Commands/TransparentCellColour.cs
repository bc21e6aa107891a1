using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A colour of cells that lets through what is below.</summary>
public sealed class TransparentCellColour : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public TransparentCellColour()
        : base(ClassCode.ControlElement, (int)ControlElement.TransparentCellColour)
    {
    }

    /// <summary>Gets or sets whether there is one.</summary>
    public bool IsActive { get; set; }

    /// <summary>Gets or sets which.</summary>
    public CgmColor Color { get; set; } = new(0);

    internal override void Exchange(ParameterExchange x)
    {
        IsActive = x.Flag(IsActive);
        Color = x.Color(Color);
    }
}
