using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>What an image becomes, as far as options can change it.</summary>
[Flags]
internal enum OutputKind
{
    /// <summary>Content of lines and texts, as pixels.</summary>
    Pixels = 1,

    /// <summary>Content of lines and texts, as a page of them.</summary>
    Page = 2,

    /// <summary>The faces of a drawing.</summary>
    Faces = 4,

    /// <summary>A picture, as pixels.</summary>
    Picture = 8,

    /// <summary>A model in its own format, object by object.</summary>
    Model = 16,

    /// <summary>Whatever is drawn.</summary>
    Drawn = Pixels | Page,
}
