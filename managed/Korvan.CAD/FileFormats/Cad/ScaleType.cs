using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>How a drawing is fitted to the page.</summary>
[PythonEnum(EnumKind.Flag)]
public enum ScaleType
{
    /// <summary>One drawing unit is one unit of the page; no fitting.</summary>
    None = 0,

    /// <summary>A drawing larger than the page is reduced until it fits; a smaller one keeps its size.</summary>
    ShrinkToFit = 1,

    /// <summary>The drawing is enlarged or reduced until it fills the page.</summary>
    GrowToFit = 2,
}
