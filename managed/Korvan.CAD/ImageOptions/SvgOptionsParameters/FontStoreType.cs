using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Where the fonts of texts that are kept as text come from.</summary>
[PythonEnum(EnumKind.Integer)]
public enum FontStoreType
{
    /// <summary>From the reader's system, by name.</summary>
    Installed = 0,

    /// <summary>From the document itself, which carries their files.</summary>
    Embedded = 1,

    /// <summary>From files beside the document, which a callback writes.</summary>
    Stream = 2,
}
