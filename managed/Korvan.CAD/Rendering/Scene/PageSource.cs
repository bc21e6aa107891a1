using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Hatch;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Makes the pages that options ask for, one at a time, so that only one list is in memory.</summary>
internal sealed class PageSource
{
    /// <summary>The largest side of a page (about 50 m); cairo's coordinates end at eight million units.</summary>
    private const double DefaultLargestPage = 144_000;
    private const double HairlinePixels = 1;
    private const double HairlineMillimetres = 0.13;
    private const double BitmapPerInch = 300;

    /// <summary>Half of the widest line that reaches onto a page from outside.</summary>
    private const double BorderMillimetres = 5;
    private const double MaxBitmapPixels = 60_000_000;

    /// <summary>Pixels up to which a page is one image. Of more, it is strips, each of which is gone before the next
    /// one is made.</summary>
    private const double MaxPixelsAtOnce = 9_000_000;
    private const int PixelsOfStrip = 2_000_000;

    /// <summary>Rows that strips share, so that no gap shows between them.</summary>
    private const int SharedRows = 2;

    /// <summary>Items up to which a list is kept for a device that could draw it in parts. Of more, the list is made
    /// twice, as that takes less than the memory for it.</summary>
    private const int MaxStored = 65_536;

    /// <summary>The same for pixels, which several threads draw where all items are there.</summary>
    private const int MaxStoredForPixels = 262_144;
    private const int BytesPerItem = 128;

    /// <summary>Items of a part. Its coordinates take 64 KiB, less than what the large object heap begins with, whose
    /// growth starts collections of the whole drawing.</summary>
    private const int PartSize = 512;

    private readonly VectorScene _scene;
    private readonly ExportOptions _options;
    private readonly TextEngine _engine;
    private readonly DeviceKind _device;
    private readonly List<ScenePage> _layouts;
    private readonly FileFormat _format;
    private double? _sharedScale;

    internal PageSource(
        VectorScene scene, ExportContext context, TextEngine engine, DeviceKind device, double unitsPerInch)
    {
        _engine = engine;
        _device = device;
        _options = new ExportOptions(context, device, unitsPerInch);
        _format = context.Options.TargetFormat;
        _scene = scene;
        _layouts = scene.Choose(_options.Layouts);
    }

    /// <summary>Gets whether the device draws lists in parts.</summary>
    internal bool InParts { get; init; }

    /// <summary>Gets whether the device draws symbols.</summary>
    internal bool HasSymbols { get; init; }

    /// <summary>Gets whether text of the device can be searched where it is not seen.</summary>
    internal bool HasHiddenText { get; init; }

    /// <summary>Gets the largest side that a page may have, in units of the device.</summary>
    internal double LargestPage { get; init; } = DefaultLargestPage;

    internal IEnumerable<Page> Pages()
    {
        foreach (ScenePage layout in _layouts)
        {
            Page page = Create(layout);
            yield return _options.AsBitmap && _device != DeviceKind.Pixels ? AsBitmap(page) : page;
        }
    }

    /// <summary>The names of the layouts that are pages.</summary>
    internal List<string> Titles => _layouts.ConvertAll(static layout => layout.Name);

    internal Page PageAt(int index) => Create(_layouts[index]);

    internal Page SinglePage()
    {
        if (_layouts.Count > 1)
        {
            throw new RenderException(
                $"A {_format} file holds one page, but {_layouts.Count} layouts were asked for; name one of them.");
        }

        Page page = Create(_layouts[0]);
        return _options.AsBitmap && _device != DeviceKind.Pixels ? AsBitmap(page) : page;
    }

    private Page Create(ScenePage layout)
    {
        RenderStyle style = _options.Style() with
        {
            MaxStored = Stored(layout),
            Expected = Math.Min(layout.Entities, Stored(layout) ?? MaxStored),
            HasSymbols = HasSymbols && !_options.AsBitmap,
            HasHiddenText = HasHiddenText && !_options.AsBitmap,
        };
        DrawingList list = _scene.Build(layout, style, _engine);
        PaperSheet? sheet = layout.SheetFor(list.Bounds);
        if (sheet is PaperSheet paper && (_options.ContentOnly ? !list.Bounds.IsEmpty : _options.WholeLayoutContent))
        {
            Bounds2 all = _options.ContentOnly ? list.Bounds : paper.Region;
            all.Add(list.Bounds);
            double grow = paper.Region.Width > 0 ? paper.WidthMm / paper.Region.Width : 1;
            sheet = new PaperSheet(all, all.Width * grow, all.Height * grow);
        }

        _options.Notes.AddSkipped(list);
        _options.Notes.SetFonts(_engine);
        PageLayout place = PageLayout.Create(_options.Request(), list.Bounds, sheet, _sharedScale);
        if (!_options.FitEachLayout)
        {
            _sharedScale ??= place.Scale;
        }

        Verify(place);
        PaintSettings settings = Settings(place, sheet?.Visible);
        Bounds2? visible = Visible(place, settings);
        PatternDetail.Resolve(list, settings, visible); // also what is there of a partial one: its symbols are whole
        void Resolved(DrawingList part, Action<DrawingList> drain)
        {
            PatternDetail.Resolve(part, settings, visible);
            drain(part);
        }

        return new Page(layout.Name, place.Width, place.Height, list, settings)
        {
            Overlay = Watermark(place),
            Replay = list.IsPartial ? drain => Replay(layout, style, part => Resolved(part, drain)) : null,
            Notes = _options.Notes,
        };
    }

    /// <summary>The part of the drawing that lies on the page, with what lines at its border need.</summary>
    private static Bounds2? Visible(in PageLayout place, in PaintSettings settings)
    {
        if (!place.ToDevice.TryInvert(out Affine2 back))
        {
            return settings.Clip;
        }

        double border = settings.UnitsPerMillimetre * BorderMillimetres;
        Bounds2 page = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = back.Point(
                (corner & 1) == 0 ? -border : place.Width + border, corner < 2 ? -border : place.Height + border);
            page.Add(p.X, p.Y);
        }

        return page;
    }

    private int? Stored(ScenePage layout)
    {
        if (_device == DeviceKind.Pixels || _options.AsBitmap)
        {
            return Budget.Room(MaxStoredForPixels, BytesPerItem);
        }

        return !InParts ? null : layout.Entities > MaxStored ? PartSize : MaxStored;
    }

    private void Replay(ScenePage layout, RenderStyle style, Action<DrawingList> drain) =>
        drain(_scene.Build(layout, style with { MaxStored = PartSize, Drain = drain }, _engine));

    private void Verify(in PageLayout place)
    {
        string? reason = _device == DeviceKind.Pixels ? RasterPage.Refuse(place.Width, place.Height) : null;
        if (!(place.Width <= LargestPage && place.Height <= LargestPage))
        {
            reason ??= $"A page of {place.Width:0} × {place.Height:0} units is too large: at most {LargestPage} on a "
                + $"side; " +
                "give a page size, or let the drawing be scaled.";
        }

        if (reason != null)
        {
            throw new RenderException(reason);
        }
    }

    private PaintSettings Settings(in PageLayout place, Bounds2? clip) => new()
    {
        ToDevice = place.ToDevice,
        UnitsPerMillimetre = _options.UnitsPerMillimetre,
        Hairline = _device == DeviceKind.Pixels ? HairlinePixels : HairlineMillimetres * _options.UnitsPerMillimetre,
        LineScale = 1,
        Background = _options.Background,
        PaintBackground = _options.PaintBackground,
        Sharp = _options.Sharp,
        Caps = _options.Caps,
        Coarseness = _options.Coarseness,
        ExactText = _options.ExactText && (_device == DeviceKind.Pixels || _options.AsBitmap),
        Interpolation = _options.Interpolation,
        Clip = clip,
    };

    /// <summary>A list in device units with the watermark along the diagonal, or null for none.</summary>
    private DrawingList? Watermark(in PageLayout place)
    {
        if (string.IsNullOrWhiteSpace(_options.Watermark))
        {
            return null;
        }

        var list = new DrawingList { ColorMap = _options.ColorMap };
        int font = _engine.Font(FontSpec.Default with { Bold = true });
        double diagonal = Math.Sqrt((place.Width * place.Width) + (place.Height * place.Height));
        double advance = Math.Max(0.1, _engine.Advance(font, _options.Watermark));
        double em = Math.Min(0.7 * diagonal / advance, 0.25 * Math.Min(place.Width, place.Height));
        double cos = place.Width / diagonal;
        double sin = place.Height / diagonal;

        // Device units run down, the run's own up; it starts half its length before the middle of the page.
        Vec2 start = new Vec2(place.Width / 2, place.Height / 2)
            - (new Vec2(cos, -sin) * (advance * em / 2)) + (new Vec2(sin, cos) * (em * _engine.CapRatio(font) / 2));
        var matrix = new Affine2(cos * em, -sin * em, -sin * em, -cos * em, start.X, start.Y);
        new Canvas(list, _engine).Text(
            _options.Watermark, font, matrix, 0, new Pen { Color = _options.WatermarkColor, Layer = -1 });
        return list;
    }

    /// <summary>The page again, its content drawn into pixels that fill it.</summary>
    private Page AsBitmap(Page page)
    {
        double perUnit = (_options.BitmapResolution ?? BitmapPerInch) / (_options.UnitsPerMillimetre * 25.4);
        double most = Math.Sqrt(MaxBitmapPixels / (page.Width * page.Height));
        double k = Math.Min(perUnit, most);
        PaintSettings settings = page.Settings with
        {
            ToDevice = new Affine2(k, 0, 0, k, 0, 0) * page.Settings.ToDevice,
            UnitsPerMillimetre = page.Settings.UnitsPerMillimetre * k,
            Hairline = page.Settings.Hairline * k,
        };
        Page large = page with
        {
            Width = Math.Max(1, page.Width * k),
            Height = Math.Max(1, page.Height * k),
            Settings = settings,
            Overlay = null,
        };
        Page drawn = page with
        {
            List = new DrawingList(),
            Replay = null,
            Settings = page.Settings with
            {
                ToDevice = Affine2.Identity,
                Clip = null,
                Interpolation = InterpolationMode.Default,
            },
        };
        if (InParts && large.Width * large.Height > MaxPixelsAtOnce)
        {
            return drawn with { Replay = drain => DrawStrips(large, drawn, drain) };
        }

        using RasterPage raster = RasterPage.Render(_engine, large);
        Put(drawn.List, raster, drawn, 0, raster.Height);
        return drawn;
    }

    private void DrawStrips(Page large, Page drawn, Action<DrawingList> drain)
    {
        using RasterPage raster = RasterPage.Render(_engine, large);
        int rows = Math.Max(1, PixelsOfStrip / raster.Width);
        for (int top = 0; top < raster.Height; top += rows)
        {
            var list = new DrawingList();
            Put(list, raster, drawn, top, Math.Min(raster.Height, top + rows + SharedRows));
            drain(list);
        }
    }

    /// <summary>Puts rows of pixels onto the page that they fill.</summary>
    private static void Put(DrawingList list, RasterPage raster, Page page, int top, int end)
    {
        double row = page.Height / raster.Height;
        var place = new Affine2(page.Width, 0, 0, -row * (end - top), 0, row * end);
        list.Image(
            new PlacedImage(raster.Width, end - top, raster.CopyPixels(top, end), place, 1) { IsPlacedOnce = true }, -1,
            Bounds2.Of(0, row * top, page.Width, row * end));
    }
}
