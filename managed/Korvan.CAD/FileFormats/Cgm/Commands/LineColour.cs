using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of lines.</summary>
public sealed class LineColour : ColourCommand
{
    /// <summary>Creates the number 1 of the colour table.</summary>
    public LineColour()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineColour)
    {
    }

    /// <summary>Creates a colour.</summary>
    /// <param name="color">The colour.</param>
    public LineColour(CgmColor color)
        : this()
    {
        Verify.NotNull(color);
        Color = color;
    }
}
