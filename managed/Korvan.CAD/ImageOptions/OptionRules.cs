using System;
using System.Collections.Generic;

namespace Korvan.CAD.ImageOptions;

/// <summary>
/// Which of the options that all formats share an output follows. What is set and not followed is refused by its name,
/// so that nobody waits for an effect that never comes.
/// </summary>
internal static class OptionRules
{
    private const OutputKind Drawn = OutputKind.Drawn;
    private const OutputKind Colored = OutputKind.Drawn | OutputKind.Faces;
    private const OutputKind Nothing = 0;

    private static readonly Rule<ImageOptionsBase>[] Common =
    [
        new(nameof(ImageOptionsBase.OutputMode), OutputKind.Model,
            static o => o.OutputMode != CadOutputMode.Render, "leave it at RENDER"),
        new(nameof(ImageOptionsBase.Rotation), OutputKind.Pixels | OutputKind.Picture, static o => o.Rotation != RotateFlipType.RotateNoneFlipNone,
            "pixels are turned, lines and texts are not; leave it at ROTATE_NONE_FLIP_NONE, or write a format of "
                + "pixels"),
        new(nameof(ImageOptionsBase.Layers), Colored, static o => o.Layers.Length > 0),
        new(nameof(ImageOptionsBase.Palette), Nothing, static o => o.Palette is not null && !o.UsesPalette,
            "only pixels that are numbers of colours have one; choose such a format and such a kind of pixels"),
        new(nameof(ImageOptionsBase.XmpData), Nothing, static o => o.XmpData is not null && !o.HoldsXmp, "JPEG, PNG, TIFF and PSD hold such data"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Page | OutputKind.Picture,
            static o => o.ResolutionSettings is not null),
        new(nameof(ImageOptionsBase.ResolutionSettings), Drawn, static o => o.ResolutionSettings is not null && !o.HoldsResolution,
            "the format has no place for a resolution"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Picture | OutputKind.Page | OutputKind.Faces | OutputKind.Model,
            static o => o.ResolutionSettings is { } r && r.HorizontalResolution != r.VerticalResolution && !o.HoldsResolution,
            "the format has no place for two resolutions; set both to one number"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Picture,
            static o => o.ResolutionSettings is not null && o.VectorRasterizationOptions is not { ContentAsBitmap: true },
            "lines and texts have no resolution; set content_as_bitmap for pixels in a page"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Picture,
            static o => o.ResolutionSettings is { } r && r.HorizontalResolution != r.VerticalResolution,
            "the pixels in a page are square; set both resolutions to one number"),
        new(nameof(ImageOptionsBase.VectorRasterizationOptions), Colored, static o => o.VectorRasterizationOptions is not null),
        new(nameof(ImageOptionsBase.RenderToGraphicsBound), Drawn, static o => o.RenderToGraphicsBound),
        new(nameof(ImageOptionsBase.Pc3File), Nothing, static o => !string.IsNullOrEmpty(o.Pc3File),
            "plotter configurations are not read; set sizes and pens in vector_rasterization_options"),
        new(nameof(ImageOptionsBase.Timeout), Colored, static o => o.Timeout != 0),
        new(nameof(ImageOptionsBase.UserWatermarkText), Drawn, static o => o.UserWatermarkText.Length > 0),
        new(nameof(ImageOptionsBase.UserWatermarkColor), Drawn, static o => o.UserWatermarkColor != ImageOptionsBase.UsualWatermark),
    ];

    private static readonly Rule<CadRasterizationOptions>[] Vector =
    [
        new(nameof(CadRasterizationOptions.BorderX), Drawn, static o => o.BorderX != 0),
        new(nameof(CadRasterizationOptions.BorderY), Drawn, static o => o.BorderY != 0),
        new(nameof(CadRasterizationOptions.Margins), Drawn, static o => o.Margins is not (null or { Left: 0, Right: 0, Top: 0, Bottom: 0 })),
        new(nameof(CadRasterizationOptions.PageSize), Drawn, static o => o.PageWidth != 0 && o.PageHeight != 0),
        new(nameof(CadRasterizationOptions.PageHeight), Drawn, static o => o.PageHeight != 0),
        new(nameof(CadRasterizationOptions.PageWidth), Drawn, static o => o.PageWidth != 0),
        new(nameof(CadRasterizationOptions.PageDepth), Nothing, static o => o.PageDepth != 0, "pages are flat; leave it at 0"),
        new(nameof(CadRasterizationOptions.EmbedBackground), Drawn, static o => o.EmbedBackground),
        new(nameof(CadRasterizationOptions.UnitType), Drawn, static o => o.UnitType != UnitType.Unitless),
        new(nameof(CadRasterizationOptions.ContentAsBitmap), Drawn, static o => o.ContentAsBitmap),
        new(nameof(CadRasterizationOptions.LineScale), Drawn, static o => o.LineScale != 1),
        new(nameof(CadRasterizationOptions.RelativeScale), Drawn, static o => o.RelativeScale != 1),
        new(nameof(CadRasterizationOptions.RelativePosition), Drawn, static o => o.RelativePosition != default),
        new(nameof(CadRasterizationOptions.Zoom), Drawn, static o => o.Zoom != 1),
        new(nameof(CadRasterizationOptions.PenOptions), Drawn, static o => o.PenOptions is not (null or { StartCap: LineCap.Round, EndCap: LineCap.Round })),
        new($"{nameof(CadRasterizationOptions.PenOptions)}.{nameof(PenOptions.EndCap)}", Nothing,
            static o => o.PenOptions is { } pen && pen.StartCap != pen.EndCap,
            "both ends of a line have one shape; set start_cap to the same"),
        new($"{nameof(CadRasterizationOptions.PenOptions)}.{nameof(PenOptions.StartCap)}", Nothing,
            static o => o.PenOptions is { StartCap: not (LineCap.Flat or LineCap.Square or LineCap.Round) },
            "lines end FLAT, SQUARE or ROUND"),
        new(nameof(CadRasterizationOptions.ObserverPoint), Drawn,
            static o => o.ObserverPoint is not (null or { RotationAngleX: 0, RotationAngleY: 0, RotationAngleZ: 0 })),
        new(nameof(CadRasterizationOptions.AutomaticLayoutsScaling), Drawn, static o => !o.AutomaticLayoutsScaling),
        new(nameof(CadRasterizationOptions.Layouts), Drawn, static o => o.Layouts.Length > 0),
        new(nameof(CadRasterizationOptions.ScaleMethod), Drawn, static o => o.ScaleMethod != FileFormats.Cad.ScaleType.GrowToFit),
        new(nameof(CadRasterizationOptions.NoScaling), Drawn, static o => o.NoScaling),
        new(nameof(CadRasterizationOptions.ExportAllLayoutContent), Drawn, static o => o.ExportAllLayoutContent),
        new(nameof(CadRasterizationOptions.ShxFonts), Nothing, static o => o.ShxFonts.Length > 0,
            "compiled shape fonts are not read, installed outline fonts stand in for them; leave it empty"),
        new(nameof(CadRasterizationOptions.ShxCodePages), Nothing, static o => o.ShxCodePages.Length > 0,
            "compiled shape fonts are not read; leave it empty"),
        new(nameof(CadRasterizationOptions.PdfProductLocation), Nothing, static o => !string.IsNullOrEmpty(o.PdfProductLocation),
            "the library writes PDF by itself; leave it empty"),
        new(nameof(CadRasterizationOptions.RenderMode3D), Nothing, static o => o.RenderMode3D != RenderMode3D.Wireframe,
            "bodies are drawn by their edges; leave it at WIREFRAME"),
        .. Graphics(), .. Quality(),
    ];

    /// <summary>What metafiles have no place for: their pictures are flat, and each line and area says itself how it looks.</summary>
    private static readonly Rule<CadRasterizationOptions>[] Metafile =
    [
        new(nameof(CadRasterizationOptions.ObserverPoint), Nothing,
            static o => o.ObserverPoint is not (null or { RotationAngleX: 0, RotationAngleY: 0, RotationAngleZ: 0 }), "pictures of metafiles are flat"),
        new(nameof(CadRasterizationOptions.VisibilityMode), Nothing, static o => o.VisibilityMode != VisibilityMode.AsScreen,
            "metafiles have no layers that are left out on paper"),
        new(nameof(CadRasterizationOptions.PenOptions), Nothing,
            static o => o.PenOptions is not (null or { StartCap: LineCap.Round, EndCap: LineCap.Round }), "lines of metafiles say themselves how they end"),
        new($"{nameof(CadRasterizationOptions.Quality)}.{nameof(RasterizationQuality.Hatch)}", Nothing,
            static o => o.Quality.Hatch == RasterizationQualityValue.Low, "hatches of metafiles are always drawn as they are"),
    ];

    /// <summary>Throws for the first option that is set and that is not followed where a metafile is drawn.</summary>
    internal static void VerifyMetafile(ImageOptionsBase options)
    {
        if (options.VectorRasterizationOptions is CadRasterizationOptions vector)
        {
            foreach (Rule<CadRasterizationOptions> rule in Metafile)
            {
                rule.Verify(options, vector, OutputKind.Page);
            }
        }
    }

    /// <summary>Throws for the first option that is set and that such an output does not follow.</summary>
    internal static void Verify(ImageOptionsBase options, OutputKind kind)
    {
        foreach (Rule<ImageOptionsBase> rule in Common)
        {
            rule.Verify(options, options, kind);
        }

        if (options.VectorRasterizationOptions is CadRasterizationOptions vector)
        {
            foreach (Rule<CadRasterizationOptions> rule in Vector)
            {
                rule.Verify(options, vector, kind);
            }
        }
    }

    /// <summary>Smoothing is for pixels, be they in a page.</summary>
    private static IEnumerable<Rule<CadRasterizationOptions>> Graphics()
    {
        const string name = nameof(CadRasterizationOptions.GraphicsOptions);
        const string advice = "who shows the page smooths its lines and texts; set content_as_bitmap for pixels in a "
            + "page";
        return
        [
            new($"{name}.{nameof(GraphicsOptions.SmoothingMode)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { SmoothingMode: not SmoothingMode.Default } && !o.ContentAsBitmap, advice),
            new($"{name}.{nameof(GraphicsOptions.TextRenderingHint)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { TextRenderingHint: not TextRenderingHint.SystemDefault } && !o.ContentAsBitmap, advice),
            new($"{name}.{nameof(GraphicsOptions.InterpolationMode)}", Nothing,
                static o => o.GraphicsOptions is { InterpolationMode: InterpolationMode.Invalid },
                "INVALID is no mode; choose one of the others"),
            new($"{name}.{nameof(GraphicsOptions.InterpolationMode)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { InterpolationMode: not InterpolationMode.Default } && !o.ContentAsBitmap, advice),
        ];
    }

    private static IEnumerable<Rule<CadRasterizationOptions>> Quality()
    {
        const RasterizationQualityValue medium = RasterizationQualityValue.Medium;
        const string name = nameof(CadRasterizationOptions.Quality);
        return
        [
            new($"{name}.{nameof(RasterizationQuality.Text)}", Drawn, static o => o.Quality.Text != medium),
            new($"{name}.{nameof(RasterizationQuality.Hatch)}", Drawn, static o => o.Quality.Hatch != medium),
            new($"{name}.{nameof(RasterizationQuality.Arc)}", Drawn, static o => o.Quality.Arc != medium),
            new($"{name}.{nameof(RasterizationQuality.Ole)}", Nothing, static o => o.Quality.Ole != medium,
                "embedded documents are not drawn; leave it at MEDIUM"),
            new($"{name}.{nameof(RasterizationQuality.ObjectsPrecision)}", OutputKind.Faces, static o => o.Quality.ObjectsPrecision != medium,
                "bodies are drawn by edges that the drawing holds; leave it at MEDIUM, or write a format of faces"),
            new($"{name}.{nameof(RasterizationQuality.TextThicknessNormalization)}", Nothing, static o => o.Quality.TextThicknessNormalization,
                "texts are drawn with outline fonts, whose strokes have no width of their own; leave it off"),
        ];
    }

    private static string Reason(OutputKind kind) => kind switch
    {
        OutputKind.Picture => "a picture of pixels has neither lines nor layers, and is written at once",
        OutputKind.Faces => "a file of faces has no page to draw on",
        OutputKind.Model => "the file holds the model itself, which is written whole",
        _ => "such pages are drawn without it",
    };

    /// <param name="Name">The option, as a path from the options that hold it.</param>
    /// <param name="Followed">The outputs that follow it.</param>
    /// <param name="IsSet">Whether it is set.</param>
    /// <param name="Advice">What would be right; nothing for words that the kind of output has ready.</param>
    private sealed record Rule<T>(string Name, OutputKind Followed, Func<T, bool> IsSet, string? Advice = null)
    {
        internal void Verify(ImageOptionsBase options, T holder, OutputKind kind)
        {
            if ((Followed & kind) == 0 && IsSet(holder))
            {
                string path = ReferenceEquals(options, holder) ? Name : $"{nameof(ImageOptionsBase.VectorRasterizationOptions)}.{Name}";
                throw options.NotHonoured(path, Advice ?? $"leave it at its default, as {Reason(kind)}");
            }
        }
    }
}
