using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Dicom;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;

namespace Korvan.CAD.Tests.Options;

/// <summary>The settings that an option depends on: those made in any case, and those made together with it.</summary>
internal sealed record OptionCompany(Action<ImageOptionsBase> Before, Action<ImageOptionsBase, object?> Along);

/// <summary>The settings that options depend on, and the options that rightly have no effect.</summary>
internal static class OptionExpectations
{
    private const string Any = "*";
    private const string OnePage =
        "BmpOptions CgmOptions EmfOptions Html5Options Jpeg2000Options JpegOptions PngOptions PsdOptions SvgOptions "
        + "WebPOptions WmfOptions";
    private const string Pixels =
        "BmpOptions DicomOptions GifOptions Jpeg2000Options JpegOptions PngOptions PsdOptions TiffOptions WebPOptions";
    private const string Pages = "CgmOptions EmfOptions Html5Options PdfOptions SvgOptions WmfOptions";
    private const string Lines = "drawing metafile";
    private const string Drawn = Pixels + " " + Pages;
    private const string Paged = "DicomOptions GifOptions TiffOptions";
    private const string Vector = "VectorRasterizationOptions.";

    /// <summary>Options that depend on others: source, classes, path, and the others.</summary>
    private static readonly (string Source, string Type, string Path, OptionCompany Company)[] Together =
    [
        (Lines, Drawn, "UserWatermarkColor", With<ImageOptionsBase>(static o => o.UserWatermarkText = "DRAFT")),
        (Lines, Drawn, "ResolutionSettings.HorizontalResolution", With<ImageOptionsBase>(
            Bitmap, static (o, value) => o.ResolutionSettings!.VerticalResolution = (double)value!)),
        (Lines, Drawn, "ResolutionSettings.VerticalResolution", With<ImageOptionsBase>(
            Bitmap, static (o, value) => o.ResolutionSettings!.HorizontalResolution = (double)value!)),
        ("drawing", Paged, "MultiPageOptions.FirstPage", With<ImageOptionsBase>(TwoLayouts)),
        ("drawing", Paged, "MultiPageOptions.PageCount", With<ImageOptionsBase>(TwoLayouts)),
        ("drawing", Paged + " PdfOptions", Vector + "AutomaticLayoutsScaling", With<ImageOptionsBase>(TwoLayouts)),
        (Lines, Drawn + " GlbOptions GltfOptions ObjOptions", Vector + "DrawColor",
            With<ImageOptionsBase>(static o => Drawing(o).DrawType = CadDrawTypeMode.UseDrawColor)),
        (Lines, Pages, Vector + "BackgroundColor",
            With<ImageOptionsBase>(static o => Drawing(o).EmbedBackground = true)),
        ("drawing", Drawn, "RenderToGraphicsBound", With<ImageOptionsBase>(static o => Drawing(o).Layouts = ["Sheet"])),
        ("drawing", Drawn, Vector + "ExportAllLayoutContent",
            With<ImageOptionsBase>(static o => Drawing(o).Layouts = ["Sheet"])),
        ("drawing", Drawn, Vector + "PenOptions.StartCap",
            With<ImageOptionsBase>(static _ => { }, static (o, cap) => Drawing(o).PenOptions!.EndCap = (LineCap)cap!)),
        ("drawing", Drawn, Vector + "PenOptions.EndCap", With<ImageOptionsBase>(
            static _ => { }, static (o, cap) => Drawing(o).PenOptions!.StartCap = (LineCap)cap!)),
        (Lines, Pages, Vector + "GraphicsOptions.InterpolationMode", With<ImageOptionsBase>(Bitmap)),
        (Lines, Pages, Vector + "GraphicsOptions.SmoothingMode", With<ImageOptionsBase>(Bitmap)),
        (Lines, Pages, Vector + "GraphicsOptions.TextRenderingHint", With<ImageOptionsBase>(Bitmap)),
        (Any, "BmpOptions", "Dithering", With<BmpOptions>(static o => o.BitsPerPixel = 4)),
        (Any, "BmpOptions", "Palette", With<BmpOptions>(static o => o.BitsPerPixel = 8)),
        (Any, "DicomOptions", "Compression.Quality",
            With<DicomOptions>(static o => o.Compression.Type = CompressionType.Jpeg)),
        ("drawing", "GifOptions", "FrameTime", With<ImageOptionsBase>(TwoLayouts)),
        ("drawing", "GifOptions", "LoopCount", With<ImageOptionsBase>(TwoLayouts)),
        (Any, "JpegOptions", "RdOptSettings.MaxQuality", With<JpegOptions>(static o => o.RdOptSettings!.BppMax = 24)),
        (Any, "JpegOptions", "RdOptSettings.MinQuality", With<JpegOptions>(static o => o.RdOptSettings!.BppMax = 0.5)),
        (Any, "PngOptions", "BitDepth", With<PngOptions>(static o => o.ColorType = PngColorType.Grayscale)),
        (Any, "PngOptions", "Dithering",
            With<PngOptions>(static o => (o.ColorType, o.BitDepth) = (PngColorType.IndexedColor, 2))),
        (Any, "PngOptions", "Palette", With<PngOptions>(static o => o.ColorType = PngColorType.IndexedColor)),
        (Any, "PsdOptions", "Palette", With<PsdOptions>(static o => o.ColorMode = ColorModes.Indexed)),
        (Any, "SvgOptions", "Callback", With<SvgOptions>(
            static o => o.TextAsShapes = false, static (o, _) => o.FontStoreType = FontStoreType.Stream)),
        (Any, "SvgOptions", "FontStoreType",
            With<SvgOptions>(static o => o.TextAsShapes = false, static (o, _) => o.Callback = new Elsewhere())),
        (Any, "TiffOptions", "AlphaStorage", With<TiffOptions>(static o => o.BitsPerSample = [8, 8, 8, 8])),
        (Any, "TiffOptions", "CompressedQuality", With<TiffOptions>(static o => o.Compression = TiffCompressions.Jpeg)),
        (Any, "TiffOptions", "FaxT4Options", With<TiffOptions>(static o => Fax(o, TiffCompressions.CcittFax3))),
        (Any, "TiffOptions", "FillOrder", With<TiffOptions>(static o => Fax(o, TiffCompressions.CcittFax4))),
        (Any, "TiffOptions", "Palette",
            With<TiffOptions>(static o => (o.Photometric, o.BitsPerSample) = (TiffPhotometrics.Palette, [8]))),
        (Any, "TiffOptions", "Threshold", With<TiffOptions>(static o => Fax(o, TiffCompressions.Lzw))),
        (Any, "WebPOptions", "Quality", With<WebPOptions>(static o => o.Lossless = false)),
    ];

    /// <summary>Values that may be refused regardless of other settings, or for their consequences.</summary>
    private static readonly (string Path, string Value)[] Refused =
    [
        ("RdOptSettings.MinQuality", "90"),
        (Vector + "NoScaling", "True"), // lines of metafiles become too wide at another scale
        (Vector + "ScaleMethod", "None"),
        (Vector + "PenOptions.StartCap", "Triangle"),
        (Vector + "PenOptions.EndCap", "Triangle"),
        (Vector + "GraphicsOptions.InterpolationMode", "Invalid"),
    ];

    /// <summary>Options without an effect: source, classes, path, values, and the reason.</summary>
    private static readonly (string Source, string Type, string Path, string Value, string Reason)[] Same =
    [
        (Any, Any, "Source", Any, "a copy is written to a second destination"),
        (Any, Any, "Timeout", Any, "the time is enough"),
        (Lines, OnePage, Vector + "AutomaticLayoutsScaling", Any, "a page alone shares its scale with no other"),
        (Lines, Pixels, Vector + "ContentAsBitmap", Any, "raster output is a bitmap already"),
        (Lines, Pixels, Vector + "EmbedBackground", Any, "pixels always have the background"),
        (Lines, Pixels, Vector + "UnitType", Any, "pixels have no length without a resolution"),
        ("drawing", Any, Vector + "GraphicsOptions.InterpolationMode", "Bilinear",
            "bilinear is the default for enlarged images"),
        (Lines, Any, Vector + "GraphicsOptions.SmoothingMode", "AntiAlias HighQuality", "antialiasing is the default"),
        (Lines, Any, Vector + "GraphicsOptions.TextRenderingHint", "AntiAlias", "antialiasing is the default"),
        (Lines, Any, Vector + "Quality.Hatch", "High", "patterns are exact already"),
        (Lines, Pages, Vector + "Quality.Text", Any, "text is kept, or becomes exact glyph outlines"),
        (Lines, "EmfOptions Html5Options PdfOptions SvgOptions", Vector + "Quality.Arc", Any, "curves stay curves"),
        ("drawing", "DwgOptions DxfOptions", "OutputMode", Any, "objects are converted one by one in any case"),
        ("drawing", "DwgOptions", "Version", "None AC1032", "the drawing is of that release"),
        ("drawing", "DxfOptions", "Version", "R2018", "the drawing is of that release"),
        ("model", "IfcOptions", "OutputMode", Any, "objects are converted one by one in any case"),
        (Lines, "PngOptions", "ColorType", "Truecolor", "opaque pixels are stored without alpha"),
        ("metafile", Any, "MultiPageOptions.PageCount", Any, "it has one picture"),
        ("metafile", "GifOptions", "FrameTime", Any, "it has one picture"),
        ("metafile", "GifOptions", "LoopCount", Any, "it has one picture"),
        ("metafile", Any, Vector + "AutomaticLayoutsScaling", Any, "it has one picture"),
        ("metafile", Any, Vector + "ExportAllLayoutContent", Any, "its picture has no content outside"),
        ("metafile", Any, Vector + "ScaleMethod", "ShrinkToFit", "it is larger than its page"),
        ("metafile", Any, Vector + "LineScale", Any, "it has dashes of its own instead of line types"),
        ("metafile", Pages, Vector + "Quality.Arc", Any, "its curves were flattened when it was written"),
        ("metafile", Any, Vector + "GraphicsOptions.InterpolationMode", "NearestNeighbor Low",
            "cell arrays have sharp edges by default"),
        ("metafile", "GifOptions Jpeg2000Options WebPOptions", "ResolutionSettings.HorizontalResolution", Any,
            "its line widths are relative to the picture, not to paper"),
        ("metafile", "GifOptions Jpeg2000Options WebPOptions", "ResolutionSettings.VerticalResolution", Any,
            "its line widths are relative to the picture, not to paper"),
        (Any, Paged, "MultiPageOptions.Mode", "Range", "an unbounded range has all pages"),
        (Any, "BmpOptions GifOptions PngOptions", "Dithering", "Serpentine",
            "it only changes how errors are distributed"),
    ];

    internal static OptionCompany? CompanyOf(string source, OptionMember member) => Array.Find(
        Together,
        row => Fits(row.Source, source) && Fits(row.Type, member.Root.Name) && row.Path == member.Path).Company;

    internal static bool IsRefused(OptionMember member, object? value) => Refused.Contains((member.Path, $"{value}"));

    internal static bool IsSame(string source, OptionMember member, object? value) => Array.Exists(
        Same,
        row => Fits(row.Source, source) && Fits(row.Type, member.Root.Name) && row.Path == member.Path
            && Fits(row.Value, $"{value}"));

    private static bool Fits(string pattern, string text) => pattern == Any || pattern.Split(' ').Contains(text);

    private static OptionCompany With<T>(Action<T> before, Action<T, object?>? along = null)
        where T : ImageOptionsBase =>
        new(options => before((T)options), (options, value) => along?.Invoke((T)options, value));

    private static CadRasterizationOptions Drawing(ImageOptionsBase options) =>
        (CadRasterizationOptions)(options.VectorRasterizationOptions ??= new CadRasterizationOptions());

    private static void Bitmap(ImageOptionsBase options) => Drawing(options).ContentAsBitmap = true;

    private static void TwoLayouts(ImageOptionsBase options) => Drawing(options).Layouts = ["Model", "Sheet"];

    private static void Fax(TiffOptions options, TiffCompressions compression) =>
        (options.Compression, options.Photometric, options.BitsPerSample) =
            (compression, TiffPhotometrics.MinIsWhite, [1]);
}
