using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The library of symbols, by its place in the list of libraries.</summary>
[CgmCommand(AttributeElement.SymbolLibraryIndex, "SYMBOLLIBINDEX")]
public sealed partial class SymbolLibraryIndex : GenericIndexCommand;

/// <summary>The colour of symbols.</summary>
[CgmCommand(AttributeElement.SymbolColour, "SYMBOLCOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class SymbolColour : ColourCommand;

/// <summary>The size of symbols.</summary>
[CgmCommand(AttributeElement.SymbolSize, "SYMBOLSIZE")]
public sealed partial class SymbolSize : Command
{
    /// <summary>Which sizes count.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ScaleIndicator
    {
        /// <summary>The height; the shape is kept.</summary>
        [CgmKeyword("HEIGHT")]
        Height = 0,

        /// <summary>The width; the shape is kept.</summary>
        [CgmKeyword("WIDTH")]
        Width = 1,

        /// <summary>Both.</summary>
        [CgmKeyword("BOTH")]
        Both = 2,
    }

    /// <summary>Gets or sets which of both sizes count.</summary>
    [CgmEnum]
    public ScaleIndicator Scaling { get; set; }

    /// <summary>Gets or sets the height, in units of the coordinates.</summary>
    [CgmVdc]
    public double Height { get; set; } = 327;

    /// <summary>Gets or sets the width.</summary>
    [CgmVdc]
    public double Width { get; set; } = 327;
}

/// <summary>Where symbols have their top and their base line.</summary>
[CgmCommand(AttributeElement.SymbolOrientation, "SYMBOLORI",
    Default = "upright")]
public sealed partial class SymbolOrientation : Command
{
    /// <summary>Gets or sets the abscissa of the direction up.</summary>
    [CgmVdc]
    public double UpX { get; set; }

    /// <summary>Gets or sets the ordinate of the direction up.</summary>
    [CgmVdc]
    public double UpY { get; set; } = 1;

    /// <summary>Gets or sets the abscissa of the direction of the base line.</summary>
    [CgmVdc]
    public double BaseX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of the direction of the base line.</summary>
    [CgmVdc]
    public double BaseY { get; set; }
}

/// <summary>The name under which a person can pick what follows in a segment.</summary>
[CgmCommand(AttributeElement.PickIdentifier, "PICKID")]
public sealed partial class PickIdentifier : Command
{
    /// <summary>Gets or sets the name, a number.</summary>
    [CgmName]
    public int Identifier { get; set; }
}
