using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which pages are written.</summary>
[PythonEnum(EnumKind.Integer)]
public enum MultiPageMode
{
    /// <summary>All pages.</summary>
    AllPages = 0,

    /// <summary>The pages with the listed numbers, in that order.</summary>
    Pages = 1,

    /// <summary>The pages with the listed names, in that order.</summary>
    Titles = 2,

    /// <summary>A range of pages.</summary>
    Range = 3,
}
