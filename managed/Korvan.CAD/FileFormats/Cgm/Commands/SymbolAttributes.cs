using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The index of the symbol library in the symbol library list.</summary>
[CgmCommand(AttributeElement.SymbolLibraryIndex, "SYMBOLLIBINDEX")]
public sealed partial class SymbolLibraryIndex : GenericIndexCommand;

/// <summary>The symbol colour.</summary>
[CgmCommand(AttributeElement.SymbolColour, "SYMBOLCOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class SymbolColour : ColourCommand;

/// <summary>The symbol size.</summary>
[CgmCommand(AttributeElement.SymbolSize, "SYMBOLSIZE")]
public sealed partial class SymbolSize : Command
{
    /// <summary>Which sizes scale the symbol.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ScaleIndicator
    {
        /// <summary>The height; the aspect ratio is kept.</summary>
        [CgmKeyword("HEIGHT")] Height = 0,

        /// <summary>The width; the aspect ratio is kept.</summary>
        [CgmKeyword("WIDTH")] Width = 1,

        /// <summary>Both.</summary>
        [CgmKeyword("BOTH")] Both = 2,
    }

    /// <summary>Gets or sets which sizes scale the symbol.</summary>
    [CgmEnum]
    public ScaleIndicator Scaling { get; set; }

    /// <summary>Gets or sets the height, in VDC.</summary>
    [CgmVdc]
    public double Height { get; set; } = 327;

    /// <summary>Gets or sets the width, in VDC.</summary>
    [CgmVdc]
    public double Width { get; set; } = 327;
}

/// <summary>The orientation of symbols by an up vector and a base vector.</summary>
[CgmCommand(AttributeElement.SymbolOrientation, "SYMBOLORI", Default = "an upright orientation")]
public sealed partial class SymbolOrientation : Command
{
    /// <summary>Gets or sets the X component of the up vector.</summary>
    [CgmVdc]
    public double UpX { get; set; }

    /// <summary>Gets or sets the Y component of the up vector.</summary>
    [CgmVdc]
    public double UpY { get; set; } = 1;

    /// <summary>Gets or sets the X component of the base vector.</summary>
    [CgmVdc]
    public double BaseX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the base vector.</summary>
    [CgmVdc]
    public double BaseY { get; set; }
}

/// <summary>The pick identifier of later primitives in a segment.</summary>
[CgmCommand(AttributeElement.PickIdentifier, "PICKID")]
public sealed partial class PickIdentifier : Command
{
    /// <summary>Gets or sets the identifier, an integer.</summary>
    [CgmName]
    public int Identifier { get; set; }
}
