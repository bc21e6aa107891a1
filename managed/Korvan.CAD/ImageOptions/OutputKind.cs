using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>The kind of output, as far as the supported options differ.</summary>
[Flags]
internal enum OutputKind
{
    /// <summary>Vector content as pixels.</summary>
    Pixels = 1,

    /// <summary>Vector content as a vector page.</summary>
    Page = 2,

    /// <summary>The faces of a drawing.</summary>
    Faces = 4,

    /// <summary>A raster image as pixels.</summary>
    Image = 8,

    /// <summary>A model in its own format, object by object.</summary>
    Model = 16,

    /// <summary>All rendered output.</summary>
    Drawn = Pixels | Page,
}
