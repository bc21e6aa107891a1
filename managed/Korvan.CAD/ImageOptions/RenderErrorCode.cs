using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Reasons for unfaithful rendering; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum RenderErrorCode
{
    /// <summary>Everything was rendered faithfully.</summary>
    Success = 0,

    /// <summary>Entities of a type that cannot be rendered were left out.</summary>
    EntityNotDrawn = 1,

    /// <summary>No available font has some of the characters; boxes are drawn instead.</summary>
    MissingGlyph = 2,

    /// <summary>An image file was not found or could not be read; a frame is drawn instead.</summary>
    MissingPicture = 4,

    /// <summary>The format has no transparency: colours were blended with the background.</summary>
    TransparencyBlended = 8,

    /// <summary>The format has no gradients: areas were filled with the mean colour.</summary>
    GradientFlattened = 16,

    /// <summary>The format clips by rectangles only: a clipping region was replaced by its bounding box.</summary>
    ClipApproximated = 32,

    /// <summary>The drawing lacks a layer that the options name.</summary>
    LayerNotFound = 64,
}
