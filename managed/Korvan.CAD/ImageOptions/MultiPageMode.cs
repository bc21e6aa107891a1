using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which pages are written.</summary>
[PythonEnum(EnumKind.Integer)]
public enum MultiPageMode
{
    /// <summary>All that the source has.</summary>
    AllPages = 0,

    /// <summary>Those whose numbers are listed, in that order.</summary>
    Pages = 1,

    /// <summary>Those whose names are listed, in that order.</summary>
    Titles = 2,

    /// <summary>Those of an interval.</summary>
    Range = 3,
}
