using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Where a document has its fonts and images: embedded, or where its options say.</summary>
internal sealed class SvgResources(SvgOptions options)
{
    private int _images;

    /// <summary>Returns the style sheet that leads from font families to fonts; empty where none is needed.</summary>
    internal string FontFaces(IEnumerable<DrawingList> lists, TextEngine engine)
    {
        if (options.FontStoreType == FontStoreType.Installed)
        {
            return "";
        }

        StringBuilder style = new("<style>");
        foreach (int font in FontsOf(lists))
        {
            FontSpec spec = engine.SpecOf(font);
            if (engine.FileOf(font) is string file)
            {
                style.Append(
                    Face(new FontStoringArgs(FirstFamily(spec), spec.Bold, spec.Italic,
                        file)
                    { FontStoreType = options.FontStoreType }));
            }
        }

        return style.Append("</style>\n").ToString();
    }

    /// <summary>Returns the address of an image: that of the callback, or the image itself.</summary>
    internal string Address(PlacedImage image)
    {
        (ImageOptionsBase encoder, string media, string extension) = options.ImageType switch
        {
            SvgImageType.Jpeg => (new JpegOptions(), "jpeg", ".jpg"),
            SvgImageType.Bmp => ((ImageOptionsBase)new BmpOptions(), "bmp", ".bmp"),
            _ => (new PngOptions(), "png", ".png"),
        };
        byte[] data = Encode(image, encoder);
        string uri = options.Callback?.OnImageResourceReady(data, options.ImageType, $"image{++_images}{extension}")
            ?? "";
        return uri.Length > 0 ? uri : $"data:image/{media};base64,{Convert.ToBase64String(data)}";
    }

    private static SortedSet<int> FontsOf(IEnumerable<DrawingList> lists)
    {
        SortedSet<int> fonts = [];
        foreach (DrawingList list in lists)
        {
            AddFonts(list, fonts);
            if (list.HasSymbols)
            {
                AddFonts(list.Definitions, fonts);
            }
        }

        return fonts;
    }

    private static void AddFonts(DrawingList list, SortedSet<int> fonts)
    {
        foreach (ref readonly DisplayItem item in list.Items)
        {
            if (item.Kind == DisplayKind.Text && !list.TextOf(item).IsHidden)
            {
                fonts.Add(list.TextOf(item).Font);
            }
        }
    }

    private static string FirstFamily(FontSpec spec) =>
        spec.Family.Split(',')[0].Trim().Replace("'", string.Empty, StringComparison.Ordinal);

    private static byte[] Encode(PlacedImage image, ImageOptionsBase encoder)
    {
        using PixelGrid grid = ToGrid(image);
        using var output = new MemoryStream();
        RasterCodecs.Write(grid, encoder, output);
        return output.ToArray();
    }

    // The pixels of a list are premultiplied with their opacity, those of a grid are not.
    private static PixelGrid ToGrid(PlacedImage image)
    {
        var grid = new PixelGrid(image.Width, image.Height);
        for (int y = 0; y < image.Height; y++)
        {
            Span<int> row = grid.WritableRow(y);
            ReadOnlySpan<byte> source = image.Pixels.AsSpan(y * image.Width * 4, image.Width * 4);
            for (int x = 0; x < row.Length; x++)
            {
                ReadOnlySpan<byte> p = source.Slice(x * 4, 4);
                int a = p[3];
                int Straight(byte part) => a == 0 ? 0 : Math.Min(255, ((part * 255) + (a / 2)) / a);
                row[x] = (a << 24) | (Straight(p[2]) << 16) | (Straight(p[1]) << 8) | Straight(p[0]);
            }
        }

        return grid;
    }

    private string Face(FontStoringArgs font)
    {
        if (font.FontStoreType == FontStoreType.Stream)
        {
            options.Callback!.OnFontResourceReady(font);
        }

        string? source = font.FontStoreType switch
        {
            FontStoreType.Embedded => $"data:font/{Media(font)};base64,{Convert.ToBase64String(font.GetFontData())}",
            FontStoreType.Stream when font.FontFileUri.Length > 0 => font.FontFileUri,
            FontStoreType.Stream =>
                throw new RenderException(
                    $"The font '{font.FontFamily}' was stored, but it was not said where: FontFileUri is empty."),
            _ => null,
        };
        if (source is null)
        {
            return "";
        }

        string style = (font.IsBold ? "font-weight:bold;" : "") + (font.IsItalic ? "font-style:italic;" : "");
        return $"@font-face{{font-family:'{font.FontFamily}';{style}"
            + $"src:url('{source.Replace("'", "%27", StringComparison.Ordinal)}')}}";
    }

    private static string Media(FontStoringArgs font) =>
        Path.GetExtension(font.SourceFontFileName).ToLowerInvariant() switch
        {
            ".otf" => "otf",
            ".ttc" => "collection",
            _ => "ttf",
        };
}
