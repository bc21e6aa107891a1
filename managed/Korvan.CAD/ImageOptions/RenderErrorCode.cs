using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>What kept something from being drawn as it is; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum RenderErrorCode
{
    /// <summary>Everything was drawn.</summary>
    Success = 0,

    /// <summary>Entities of a type that has no picture were left out.</summary>
    EntityNotDrawn = 1,

    /// <summary>No font that is there has some of the letters; boxes stand in for them.</summary>
    MissingGlyph = 2,

    /// <summary>The file of a picture was not found or not read; a frame stands in for it.</summary>
    MissingPicture = 4,

    /// <summary>The format has no transparency: colours were mixed with that of the page.</summary>
    TransparencyBlended = 8,

    /// <summary>The format has no gradients: areas were filled with one colour in the middle of theirs.</summary>
    GradientFlattened = 16,

    /// <summary>The format clips by rectangles only: the box around a region stands in for it.</summary>
    ClipApproximated = 32,

    /// <summary>A layer that the options name is not in the drawing.</summary>
    LayerNotFound = 64,
}
