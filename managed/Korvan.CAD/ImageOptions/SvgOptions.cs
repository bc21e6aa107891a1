using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes scalable vector graphics.</summary>
public class SvgOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public SvgOptions()
        : base(FileFormat.Svg)
    {
    }

    /// <summary>Gets or sets whether texts become outlines, so that they look the same without their fonts. On by
    /// default.</summary>
    public bool TextAsShapes { get; set; } = true;

    /// <summary>Gets or sets the colours that are used. Those of the drawing by default.</summary>
    public SvgColorMode ColorType { get; set; } = SvgColorMode.Rgb;

    /// <summary>Gets or sets where the fonts of texts come from that are kept as text. By default from the reader's
    /// system.</summary>
    public FontStoreType FontStoreType { get; set; } = FontStoreType.Installed;

    /// <summary>Gets or sets the format of pictures. PNG by default; the others have no transparency.</summary>
    public SvgImageType ImageType { get; set; } = SvgImageType.Png;

    /// <summary>Gets or sets who keeps fonts and pictures that do not stand in the document; nothing to keep all in
    /// it. Holds for texts that are kept as text, and for pictures in such documents.</summary>
    public ISvgResourceKeeperCallback? Callback { get; set; }

    /// <summary>Lets fonts and pictures be kept as files in a folder: sets <see cref="Callback"/>, and
    /// <see cref="FontStoreType"/> to <see cref="FontStoreType.Stream"/>.</summary>
    /// <param name="folder">The folder; it is made when something is put into it.</param>
    /// <param name="uri">What stands before file names in the document, as a path from the document to the folder; empty
    /// where the document stands in the folder.</param>
    public void StoreResourcesIn(string folder, string uri)
    {
        Verify.NotBlank(folder);
        Verify.NotNull(uri);
        Callback = new FolderResourceKeeper(Path.GetFullPath(folder), uri);
        FontStoreType = FontStoreType.Stream;
    }

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (TextAsShapes && FontStoreType != FontStoreType.Installed)
        {
            throw NotHonoured(nameof(FontStoreType), "set text_as_shapes to False, as outlines need no fonts");
        }

        if (TextAsShapes && (Callback is not null || ImageType != SvgImageType.Png))
        {
            throw NotHonoured(
                Callback is not null ? nameof(Callback) : nameof(ImageType), "set text_as_shapes to False");
        }

        if (FontStoreType == FontStoreType.Stream && Callback is null)
        {
            throw NotHonoured(nameof(FontStoreType), "name a folder with store_resources_in");
        }
    }
}
