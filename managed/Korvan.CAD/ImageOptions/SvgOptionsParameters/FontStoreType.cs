using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>How the fonts of an SVG document are stored.</summary>
[PythonEnum(EnumKind.Integer)]
public enum FontStoreType
{
    /// <summary>Not stored: the viewer's system provides fonts by name.</summary>
    Installed = 0,

    /// <summary>Embedded in the document.</summary>
    Embedded = 1,

    /// <summary>In separate files, which a callback writes.</summary>
    Stream = 2,
}
