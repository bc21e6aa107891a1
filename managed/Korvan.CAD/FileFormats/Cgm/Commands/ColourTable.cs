using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Defines colours of the colour table, one after the other.</summary>
public sealed class ColourTable : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ColourTable()
        : base(ClassCode.AttributeElement, (int)AttributeElement.ColourTable)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="startIndex">The number of the first one.</param>
    /// <param name="colors">The colours, each told by its components.</param>
    public ColourTable(int startIndex, List<CgmColor> colors)
        : this()
    {
        Verify.NotNull(colors);
        StartIndex = startIndex;
        Colors = colors;
    }

    /// <summary>Gets or sets the number of the first one.</summary>
    public int StartIndex { get; set; }

    /// <summary>Gets or sets the colours, each told by its components.</summary>
    public List<CgmColor> Colors { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        StartIndex = x.ColorIndex(StartIndex);
        Colors = x.Rest(Colors, static (y, color) => y.DirectColor(color));
    }
}
