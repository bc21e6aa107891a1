using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An element whose only parameter is an index.</summary>
[CgmCommand]
public abstract partial class GenericIndexCommand : Command
{
    /// <summary>Gets or sets the index; what it counts from 1 is told by the element. Negative ones are
    /// private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;
}

/// <summary>A colour that later elements are drawn in.</summary>
[CgmCommand]
public abstract partial class ColourCommand : Command
{
    /// <summary>Gets or sets the colour: a number of the colour table or a colour by itself, as the picture
    /// selects.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}
