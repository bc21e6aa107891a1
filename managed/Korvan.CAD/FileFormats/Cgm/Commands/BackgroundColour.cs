using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of the surface, and number 0 of the colour table.</summary>
public sealed class BackgroundColour : Command
{
    /// <summary>Creates white.</summary>
    public BackgroundColour()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.BackgroundColour)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="color">The colour, told by its components.</param>
    public BackgroundColour(CgmColor color)
        : this()
    {
        Verify.NotNull(color);
        Color = color;
    }

    /// <summary>Gets or sets the colour, told by its components.</summary>
    public CgmColor Color { get; set; } = new(Korvan.CAD.Color.White);

    internal override void Exchange(ParameterExchange x) => Color = x.DirectColor(Color);
}
