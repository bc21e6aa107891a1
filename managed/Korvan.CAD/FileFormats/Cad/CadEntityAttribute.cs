using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The fields that all entities have, by their group codes.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadEntityAttribute
{
    /// <summary>No field.</summary>
    None = 0,

    /// <summary>The handle.</summary>
    Handle = 5,

    /// <summary>The name of the line type.</summary>
    LineTypeName = 6,

    /// <summary>The name of the layer.</summary>
    LayerName = 8,

    /// <summary>The factor on the lengths of the line type.</summary>
    LineTypeScale = 48,

    /// <summary>Whether the entity is hidden.</summary>
    Visibility = 60,

    /// <summary>The index of the colour.</summary>
    ColorId = 62,

    /// <summary>The space that the entity is in.</summary>
    SpaceMode = 67,

    /// <summary>The number of bytes of proxy graphics.</summary>
    GraphicsSize = 92,

    /// <summary>The marker of a subclass.</summary>
    Subclass = 100,

    /// <summary>The shadows of the entity.</summary>
    ShadowMode = 284,

    /// <summary>Proxy graphics.</summary>
    GraphicsData = 310,

    /// <summary>The handle of the owner.</summary>
    Owner = 330,

    /// <summary>The handle of the material.</summary>
    Material = 347,

    /// <summary>The line weight.</summary>
    LineWeight = 370,

    /// <summary>The handle of the plot style.</summary>
    PlotStyle = 390,

    /// <summary>The name of the layout.</summary>
    LayoutName = 410,

    /// <summary>The colour as 0xRRGGBB.</summary>
    ColorValue = 420,

    /// <summary>The name of the colour in its book.</summary>
    ColorName = 430,

    /// <summary>The transparency.</summary>
    Transparency = 440,
}
