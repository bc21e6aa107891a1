using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An element whose only parameter is an index.</summary>
[CgmCommand]
public abstract partial class GenericIndexCommand : Command
{
    /// <summary>Gets or sets the index, from 1; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;
}

/// <summary>A colour attribute of later elements.</summary>
[CgmCommand]
public abstract partial class ColourCommand : Command
{
    /// <summary>Gets or sets the colour: an index into the colour table or a direct colour, as the colour selection
    /// mode says.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}
