using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of areas.</summary>
public sealed class FillColour : ColourCommand
{
    /// <summary>Creates the number 1 of the colour table.</summary>
    public FillColour()
        : base(ClassCode.AttributeElement, (int)AttributeElement.FillColour)
    {
    }

    /// <summary>Creates a colour.</summary>
    /// <param name="color">The colour.</param>
    public FillColour(CgmColor color)
        : this()
    {
        Verify.NotNull(color);
        Color = color;
    }
}
