using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for SVG documents.</summary>
public class SvgOptions : ImageOptionsBase, ITextAsShapesOptions
{
    /// <summary>Creates options with default values.</summary>
    public SvgOptions()
        : base(FileFormat.Svg)
    {
    }

    /// <summary>Gets or sets whether text is written as glyph outlines, so that its appearance does not depend on
    /// installed fonts. On by default.</summary>
    public bool TextAsShapes { get; set; } = true;

    /// <summary>Gets or sets the colour mode. The colours of the drawing by default.</summary>
    public SvgColorMode ColorType { get; set; } = SvgColorMode.Rgb;

    /// <summary>Gets or sets how the fonts of text that is not written as outlines are stored. By default they are not
    /// stored: the viewer's system provides them.</summary>
    public FontStoreType FontStoreType { get; set; } = FontStoreType.Installed;

    /// <summary>Gets or sets the format of images. PNG by default; the others have no transparency.</summary>
    public SvgImageType ImageType { get; set; } = SvgImageType.Png;

    /// <summary>Gets or sets the callback that stores fonts and images outside the document; <see langword="null"/> to
    /// embed them. Text that is written as outlines has no fonts to store.</summary>
    public ISvgResourceKeeperCallback? Callback { get; set; }

    /// <summary>Stores fonts and images as files in a folder: sets <see cref="Callback"/>, and
    /// <see cref="FontStoreType"/> to <see cref="FontStoreType.Stream"/>.</summary>
    /// <param name="folder">The folder; it is created when the first file is stored.</param>
    /// <param name="uri">The prefix of file names in the document: the path from the document to the folder; empty if
    /// the document is in the folder.</param>
    public void StoreResourcesIn(string folder, string uri)
    {
        Verify.NotBlank(folder);
        Verify.NotNull(uri);
        Callback = new FolderResourceStore(Path.GetFullPath(folder), uri);
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

        if (FontStoreType == FontStoreType.Stream && Callback is null)
        {
            throw NotHonoured(nameof(FontStoreType), "name a folder with store_resources_in");
        }
    }
}
