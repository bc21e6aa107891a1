using System;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>A layout of pango that shapes one line of text, with the fonts of some folders.</summary>
internal sealed unsafe class TextLayout : IDisposable
{
    private const double PointsPerInch = 72;
    private const int HintMetricsOff = 1;

    private readonly NativeHandle _fontMap;
    private readonly NativeHandle _context;
    private readonly NativeHandle _layout;

    /// <summary>Creates a layout.</summary>
    /// <exception cref="DisplayList.RenderException">A shared library is missing.</exception>
    internal TextLayout(GlyphRendering look, FontFolders? folders)
    {
        NativeLibraries.Require();
        _fontMap = new NativeHandle(Pango.CairoFontMapNew(), &Pango.Unref);
        if (folders is not null)
        {
            Pango.FcFontMapSetConfig(_fontMap.Pointer, folders.Config);
        }

        _context = new NativeHandle(Pango.FontMapCreateContext(_fontMap.Pointer), &Pango.Unref);
        Pango.CairoContextSetResolution(_context.Pointer, PointsPerInch);
        Pango.ContextSetRoundGlyphPositions(_context.Pointer, 0);
        using var options = new NativeHandle(Cairo.FontOptionsCreate(), &Cairo.FontOptionsDestroy);
        Cairo.FontOptionsSetHintStyle(options.Pointer, look.Hinting);
        Cairo.FontOptionsSetHintMetrics(options.Pointer, HintMetricsOff);
        Cairo.FontOptionsSetAntialias(options.Pointer, look.Antialias);
        Pango.CairoContextSetFontOptions(_context.Pointer, options.Pointer);
        _layout = new NativeHandle(Pango.LayoutNew(_context.Pointer), &Pango.Unref);
        Pango.LayoutSetSingleParagraphMode(_layout.Pointer, 1);
        Pango.LayoutSetAutoDir(_layout.Pointer, 1);
    }

    /// <summary>Gets the layout for calls of pango.</summary>
    internal nint Pointer => _layout.Pointer;

    /// <inheritdoc/>
    public void Dispose()
    {
        _layout.Dispose();
        _context.Dispose();
        _fontMap.Dispose();
    }
}
