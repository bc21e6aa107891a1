using System;
using System.Collections.Generic;

namespace Korvan.CAD.ImageOptions;

/// <summary>
/// Which of the options that all formats share are supported by an output. If one is set that is not, an error names
/// it, so that no option is ignored silently.
/// </summary>
internal static class OptionRules
{
    private const OutputKind Drawn = OutputKind.Drawn;
    private const OutputKind Colored = OutputKind.Drawn | OutputKind.Faces;
    private const OutputKind None = 0;

    private static readonly Rule<ImageOptionsBase>[] Common =
    [
        new(nameof(ImageOptionsBase.OutputMode), OutputKind.Model,
            static o => o.OutputMode != CadOutputMode.Render, "leave it at RENDER"),
        new(nameof(ImageOptionsBase.Rotation), OutputKind.Pixels | OutputKind.Image,
            static o => o.Rotation != RotateFlipType.RotateNoneFlipNone,
            "only pixels are rotated and flipped; leave it at ROTATE_NONE_FLIP_NONE, or write a raster format"),
        new(nameof(ImageOptionsBase.Layers), Colored, static o => o.Layers.Length > 0),
        new(nameof(ImageOptionsBase.Palette), None, static o => o.Palette is not null && !o.UsesPalette,
            "only indexed pixels have one; choose a format and a colour type with indexed pixels"),
        new(nameof(ImageOptionsBase.XmpData), None, static o => o.XmpData is not null && !o.HoldsXmp,
            "JPEG, PNG, TIFF and PSD hold such data"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Page | OutputKind.Image,
            static o => o.ResolutionSettings is not null),
        new(nameof(ImageOptionsBase.ResolutionSettings), Drawn,
            static o => o.ResolutionSettings is not null && !o.HoldsResolution,
            "the format cannot store a resolution"),
        new(nameof(ImageOptionsBase.ResolutionSettings), ~OutputKind.Pixels,
            static o => HasTwoResolutions(o) && !o.HoldsResolution,
            "the format cannot store two resolutions; set both to the same number"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Image,
            static o => o.ResolutionSettings is not null
                && o.VectorRasterizationOptions is not { ContentAsBitmap: true },
            "vector graphics have no resolution; set content_as_bitmap for pixels in a page"),
        new(nameof(ImageOptionsBase.ResolutionSettings), OutputKind.Pixels | OutputKind.Image,
            HasTwoResolutions,
            "the pixels in a page are square; set both resolutions to the same number"),
        new(nameof(ImageOptionsBase.VectorRasterizationOptions), Colored,
            static o => o.VectorRasterizationOptions is not null),
        new(nameof(ImageOptionsBase.RenderToGraphicsBound), Drawn, static o => o.RenderToGraphicsBound),
        new(nameof(ImageOptionsBase.Pc3File), None, static o => !string.IsNullOrEmpty(o.Pc3File),
            "plotter configurations are not supported; set sizes and pens in vector_rasterization_options"),
        new(nameof(ImageOptionsBase.UserWatermarkText), Drawn, static o => o.UserWatermarkText.Length > 0),
        new(nameof(ImageOptionsBase.UserWatermarkColor), Drawn,
            static o => o.UserWatermarkColor != ImageOptionsBase.DefaultWatermarkColor),
    ];

    private static readonly Rule<CadRasterizationOptions>[] Vector =
    [
        new(nameof(CadRasterizationOptions.BorderX), Drawn, static o => o.BorderX != 0),
        new(nameof(CadRasterizationOptions.BorderY), Drawn, static o => o.BorderY != 0),
        new(nameof(CadRasterizationOptions.Margins), Drawn,
            static o => o.Margins is not (null or { Left: 0, Right: 0, Top: 0, Bottom: 0 })),
        new(nameof(CadRasterizationOptions.PageSize), Drawn, static o => o.PageWidth != 0 && o.PageHeight != 0),
        new(nameof(CadRasterizationOptions.PageHeight), Drawn, static o => o.PageHeight != 0),
        new(nameof(CadRasterizationOptions.PageWidth), Drawn, static o => o.PageWidth != 0),
        new(nameof(CadRasterizationOptions.PageDepth), None, static o => o.PageDepth != 0,
            "pages are flat; leave it at 0"),
        new(nameof(CadRasterizationOptions.EmbedBackground), Drawn, static o => o.EmbedBackground),
        new(nameof(CadRasterizationOptions.UnitType), Drawn, static o => o.UnitType != UnitType.Unitless),
        new(nameof(CadRasterizationOptions.ContentAsBitmap), Drawn, static o => o.ContentAsBitmap),
        new(nameof(CadRasterizationOptions.LineScale), Drawn, static o => o.LineScale != 1),
        new(nameof(CadRasterizationOptions.RelativeScale), Drawn, static o => o.RelativeScale != 1),
        new(nameof(CadRasterizationOptions.RelativePosition), Drawn, static o => o.RelativePosition != default),
        new(nameof(CadRasterizationOptions.Zoom), Drawn, static o => o.Zoom != 1),
        new(nameof(CadRasterizationOptions.PenOptions), Drawn, HasOtherCaps),
        new($"{nameof(CadRasterizationOptions.PenOptions)}.{nameof(PenOptions.EndCap)}", None,
            static o => o.PenOptions is { } pen && pen.StartCap != pen.EndCap,
            "both ends of a line have the same cap; set start_cap to it as well"),
        new($"{nameof(CadRasterizationOptions.PenOptions)}.{nameof(PenOptions.StartCap)}", None,
            static o => o.PenOptions is { StartCap: not (LineCap.Flat or LineCap.Square or LineCap.Round) },
            "caps are FLAT, SQUARE or ROUND"),
        new(nameof(CadRasterizationOptions.ObserverPoint), Drawn, IsNotPlanView),
        new(nameof(CadRasterizationOptions.AutomaticLayoutsScaling), Drawn, static o => !o.AutomaticLayoutsScaling),
        new(nameof(CadRasterizationOptions.Layouts), Drawn, static o => o.Layouts.Length > 0),
        new(nameof(CadRasterizationOptions.ScaleMethod), Drawn,
            static o => o.ScaleMethod != FileFormats.Cad.ScaleType.GrowToFit),
        new(nameof(CadRasterizationOptions.NoScaling), Drawn, static o => o.NoScaling),
        new(nameof(CadRasterizationOptions.ExportAllLayoutContent), Drawn, static o => o.ExportAllLayoutContent),
        new(nameof(CadRasterizationOptions.ShxFonts), Drawn, static o => o.ShxFonts.Length > 0),
        new(nameof(CadRasterizationOptions.ShxCodePages), None,
            static o => o.ShxCodePages.Length > 0 && o.ShxFonts.Length == 0,
            "they are for the fonts of shx_fonts, which names none"),
        new(nameof(CadRasterizationOptions.PdfProductLocation), None,
            static o => !string.IsNullOrEmpty(o.PdfProductLocation),
            "the library writes PDF itself; leave it empty"),
        new(nameof(CadRasterizationOptions.RenderMode3D), None,
            static o => o.RenderMode3D != RenderMode3D.Wireframe,
            "solids are drawn as edges; leave it at WIREFRAME"),
        .. Graphics(), .. Quality(),
    ];

    /// <summary>Options that metafiles do not support: their pictures are flat, and each element has its own
    /// attributes.</summary>
    private static readonly Rule<CadRasterizationOptions>[] Metafile =
    [
        new(nameof(CadRasterizationOptions.ObserverPoint), None, IsNotPlanView, "pictures of metafiles are flat"),
        new(nameof(CadRasterizationOptions.ShxFonts), None, static o => o.ShxFonts.Length > 0,
            "metafiles have outline fonts"),
        new(nameof(CadRasterizationOptions.VisibilityMode), None,
            static o => o.VisibilityMode != VisibilityMode.AsScreen,
            "metafiles have no layers that are not plottable"),
        new(nameof(CadRasterizationOptions.PenOptions), None, HasOtherCaps, "metafiles define their own line caps"),
        new($"{nameof(CadRasterizationOptions.Quality)}.{nameof(RasterizationQuality.Hatch)}", None,
            static o => o.Quality.Hatch == RasterizationQualityValue.Low,
            "hatches of metafiles are always drawn in full"),
    ];

    /// <summary>Throws for the first option that is set, but not supported for metafiles.</summary>
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

    /// <summary>Throws for the first option that is set, but not supported by a kind of output.</summary>
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

    /// <summary>Antialiasing concerns pixels only, also those within a page.</summary>
    private static IEnumerable<Rule<CadRasterizationOptions>> Graphics()
    {
        const string name = nameof(CadRasterizationOptions.GraphicsOptions);
        const string advice = "the viewer of the page applies antialiasing; set content_as_bitmap for pixels in a page";
        return
        [
            new($"{name}.{nameof(GraphicsOptions.SmoothingMode)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { SmoothingMode: not SmoothingMode.Default } && !o.ContentAsBitmap,
                advice),
            new($"{name}.{nameof(GraphicsOptions.TextRenderingHint)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { TextRenderingHint: not TextRenderingHint.SystemDefault }
                    && !o.ContentAsBitmap,
                advice),
            new($"{name}.{nameof(GraphicsOptions.InterpolationMode)}", None,
                static o => o.GraphicsOptions is { InterpolationMode: InterpolationMode.Invalid },
                "INVALID is no mode; choose one of the others"),
            new($"{name}.{nameof(GraphicsOptions.InterpolationMode)}", OutputKind.Pixels,
                static o => o.GraphicsOptions is { InterpolationMode: not InterpolationMode.Default }
                    && !o.ContentAsBitmap,
                advice),
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
            new($"{name}.{nameof(RasterizationQuality.Ole)}", None, static o => o.Quality.Ole != medium,
                "embedded documents are not rendered; leave it at MEDIUM"),
            new($"{name}.{nameof(RasterizationQuality.ObjectsPrecision)}", OutputKind.Faces,
                static o => o.Quality.ObjectsPrecision != medium,
                "solids are drawn as the edges in the drawing; leave it at MEDIUM, or write a mesh format"),
            new($"{name}.{nameof(RasterizationQuality.TextThicknessNormalization)}", None,
                static o => o.Quality.TextThicknessNormalization,
                "text is drawn with outline fonts, which have no strokes; leave it off"),
        ];
    }

    private static bool HasTwoResolutions(ImageOptionsBase options) =>
        options.ResolutionSettings is { } both && both.HorizontalResolution != both.VerticalResolution;

    private static bool HasOtherCaps(CadRasterizationOptions options) =>
        options.PenOptions is not (null or { StartCap: LineCap.Round, EndCap: LineCap.Round });

    private static bool IsNotPlanView(CadRasterizationOptions options) =>
        options.ObserverPoint is not (null or { RotationAngleX: 0, RotationAngleY: 0, RotationAngleZ: 0 });

    private static string Reason(OutputKind kind) => kind switch
    {
        OutputKind.Image => "a raster image has neither lines nor layers",
        OutputKind.Faces => "a mesh has no page",
        OutputKind.Model => "the whole model is written",
        _ => "such pages do not support it",
    };

    /// <param name="Name">The path of the option from the options object.</param>
    /// <param name="Supported">The outputs that support it.</param>
    /// <param name="IsSet">Whether it is set.</param>
    /// <param name="Advice">What to do instead; <see langword="null"/> for the default advice of the kind of
    /// output.</param>
    private sealed record Rule<T>(string Name, OutputKind Supported, Func<T, bool> IsSet, string? Advice = null)
    {
        internal void Verify(ImageOptionsBase options, T holder, OutputKind kind)
        {
            if ((Supported & kind) == 0 && IsSet(holder))
            {
                string path = ReferenceEquals(options, holder)
                    ? Name
                    : $"{nameof(ImageOptionsBase.VectorRasterizationOptions)}.{Name}";
                throw options.NotHonoured(path, Advice ?? $"leave it at its default, as {Reason(kind)}");
            }
        }
    }
}
