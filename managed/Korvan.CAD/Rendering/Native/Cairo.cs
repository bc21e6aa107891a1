using System.Runtime.InteropServices;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Native;

internal enum CairoFormat { Argb32 = 0, Rgb24 = 1 }

internal enum CairoFillRule { Winding = 0, EvenOdd = 1 }

internal enum CairoLineCap { Butt = 0, Round = 1, Square = 2 }

internal enum CairoExtend { None = 0, Pad = 3 }

internal enum CairoFilter { Fast = 0, Good = 1, Best = 2, Nearest = 3, Bilinear = 4 }

internal enum CairoLineJoin { Miter = 0, Round = 1, Bevel = 2 }

internal enum CairoAntialias { Default = 0, None = 1, Gray = 2, Subpixel = 3, Fast = 4, Good = 5, Best = 6 }

internal enum CairoOperator { Clear = 0, Source = 1, Over = 2 }

[StructLayout(LayoutKind.Sequential)]
internal struct CairoMatrix
{
    public double Xx;
    public double Yx;
    public double Xy;
    public double Yy;
    public double X0;
    public double Y0;
}

/// <summary>The part of cairo's function table that the devices call.</summary>
internal static unsafe partial class Cairo
{
    internal const string Library = "libcairo.so.2";

    /// <summary>Surfaces with colour and transparency.</summary>
    internal const int ContentColorAlpha = 0x3000;

    [LibraryImport(Library, EntryPoint = "cairo_create")]
    internal static partial nint Create(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_destroy")]
    internal static partial void Destroy(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_status")]
    internal static partial int Status(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_status_to_string")]
    private static partial nint StatusToString(int status);

    [LibraryImport(Library, EntryPoint = "cairo_save")]
    internal static partial void Save(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_restore")]
    internal static partial void Restore(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_transform")]
    internal static partial void Transform(nint cr, CairoMatrix* matrix);

    [LibraryImport(Library, EntryPoint = "cairo_new_path")]
    [SuppressGCTransition]
    internal static partial void NewPath(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_move_to")]
    [SuppressGCTransition]
    internal static partial void MoveTo(nint cr, double x, double y);

    [LibraryImport(Library, EntryPoint = "cairo_line_to")]
    [SuppressGCTransition]
    internal static partial void LineTo(nint cr, double x, double y);

    [LibraryImport(Library, EntryPoint = "cairo_curve_to")]
    [SuppressGCTransition]
    internal static partial void CurveTo(nint cr, double x1, double y1, double x2, double y2, double x3, double y3);

    [LibraryImport(Library, EntryPoint = "cairo_close_path")]
    [SuppressGCTransition]
    internal static partial void ClosePath(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_rectangle")]
    internal static partial void Rectangle(nint cr, double x, double y, double width, double height);

    [LibraryImport(Library, EntryPoint = "cairo_stroke")]
    internal static partial void Stroke(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_fill")]
    internal static partial void Fill(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_clip")]
    internal static partial void Clip(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_paint")]
    internal static partial void Paint(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_paint_with_alpha")]
    internal static partial void PaintWithAlpha(nint cr, double alpha);

    [LibraryImport(Library, EntryPoint = "cairo_set_source_rgba")]
    internal static partial void SetSourceRgba(nint cr, double red, double green, double blue, double alpha);

    [LibraryImport(Library, EntryPoint = "cairo_set_source")]
    internal static partial void SetSource(nint cr, nint pattern);

    [LibraryImport(Library, EntryPoint = "cairo_set_source_surface")]
    internal static partial void SetSourceSurface(nint cr, nint surface, double x, double y);

    [LibraryImport(Library, EntryPoint = "cairo_set_line_width")]
    internal static partial void SetLineWidth(nint cr, double width);

    [LibraryImport(Library, EntryPoint = "cairo_set_line_cap")]
    internal static partial void SetLineCap(nint cr, CairoLineCap cap);

    [LibraryImport(Library, EntryPoint = "cairo_set_line_join")]
    internal static partial void SetLineJoin(nint cr, CairoLineJoin join);

    [LibraryImport(Library, EntryPoint = "cairo_set_miter_limit")]
    internal static partial void SetMiterLimit(nint cr, double limit);

    [LibraryImport(Library, EntryPoint = "cairo_get_source")]
    internal static partial nint GetSource(nint cr);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_set_filter")]
    internal static partial void PatternSetFilter(nint pattern, CairoFilter filter);

    /// <summary>States what a pattern is outside of its surface.</summary>
    [LibraryImport(Library, EntryPoint = "cairo_pattern_set_extend")]
    internal static partial void PatternSetExtend(nint pattern, CairoExtend extend);

    [LibraryImport(Library, EntryPoint = "cairo_set_dash")]
    internal static partial void SetDash(nint cr, double* dashes, int count, double offset);

    [LibraryImport(Library, EntryPoint = "cairo_set_fill_rule")]
    internal static partial void SetFillRule(nint cr, CairoFillRule rule);

    [LibraryImport(Library, EntryPoint = "cairo_set_antialias")]
    internal static partial void SetAntialias(nint cr, CairoAntialias antialias);

    [LibraryImport(Library, EntryPoint = "cairo_set_tolerance")]
    internal static partial void SetTolerance(nint cr, double tolerance);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_create_linear")]
    internal static partial nint PatternCreateLinear(double x0, double y0, double x1, double y1);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_create_radial")]
    internal static partial nint PatternCreateRadial(double x0, double y0, double r0, double x1, double y1, double r1);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_add_color_stop_rgba")]
    internal static partial void PatternAddColorStop(
        nint pattern, double offset, double red, double green, double blue, double alpha);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_set_matrix")]
    internal static partial void PatternSetMatrix(nint pattern, CairoMatrix* matrix);

    [LibraryImport(Library, EntryPoint = "cairo_pattern_destroy")]
    internal static partial void PatternDestroy(nint pattern);

    [LibraryImport(Library, EntryPoint = "cairo_surface_status")]
    internal static partial int SurfaceStatus(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_surface_flush")]
    internal static partial void SurfaceFlush(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_surface_destroy")]
    internal static partial void SurfaceDestroy(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_surface_mark_dirty")]
    internal static partial void SurfaceMarkDirty(nint surface);

    /// <summary>Makes a surface that keeps what is drawn; without a rectangle it has no end.</summary>
    [LibraryImport(Library, EntryPoint = "cairo_recording_surface_create")]
    internal static partial nint RecordingSurfaceCreate(int content, double* extents);

    [LibraryImport(Library, EntryPoint = "cairo_image_surface_create_for_data")]
    internal static partial nint ImageSurfaceCreateForData(
        byte* data, CairoFormat format, int width, int height, int stride);

    [LibraryImport(Library, EntryPoint = "cairo_surface_set_device_offset")]
    internal static partial void SurfaceSetDeviceOffset(nint surface, double x, double y);

    [LibraryImport(Library, EntryPoint = "cairo_image_surface_get_data")]
    internal static partial byte* ImageSurfaceGetData(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_image_surface_get_stride")]
    internal static partial int ImageSurfaceGetStride(nint surface);

    [LibraryImport(Library, EntryPoint = "cairo_font_options_create")]
    internal static partial nint FontOptionsCreate();

    [LibraryImport(Library, EntryPoint = "cairo_font_options_destroy")]
    internal static partial void FontOptionsDestroy(nint options);

    [LibraryImport(Library, EntryPoint = "cairo_font_options_set_hint_style")]
    internal static partial void FontOptionsSetHintStyle(nint options, int style);

    [LibraryImport(Library, EntryPoint = "cairo_font_options_set_hint_metrics")]
    internal static partial void FontOptionsSetHintMetrics(nint options, int metrics);

    [LibraryImport(Library, EntryPoint = "cairo_font_options_set_antialias")]
    internal static partial void FontOptionsSetAntialias(nint options, CairoAntialias antialias);

    /// <summary>Throws with cairo's own text when a context or surface has failed.</summary>
    internal static void Check(int status, string doing)
    {
        if (status != 0)
        {
            string text = Marshal.PtrToStringUTF8(StatusToString(status)) ?? "unknown status";
            throw new RenderException($"cairo failed while {doing}: {text} (status {status})");
        }
    }
}
