using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Makes the pages that options ask for, one at a time, so that only one list is in memory.</summary>
internal sealed class PageSource
{
    /// <summary>The largest side of a page (about 50 m); cairo's coordinates end at eight million units.</summary>
    private const double LargestPage = 144_000;
    private const double HairlinePixels = 1;
    private const double HairlineMillimetres = 0.13;
    private const double BitmapPerInch = 300;
    private const double MostBitmapPixels = 60_000_000;

    private readonly VectorScene scene;
    private readonly ExportOptions options;
    private readonly TextEngine engine;
    private readonly DeviceKind device;
    private readonly List<ScenePage> layouts;
    private readonly string format;
    private double? sharedScale;

    internal PageSource(VectorScene scene, ExportContext context, TextEngine engine, DeviceKind device, double unitsPerInch)
    {
        this.engine = engine;
        this.device = device;
        this.options = new ExportOptions(context, device, unitsPerInch);
        format = context.Options.TargetFormat.ToString();
        this.scene = scene;
        layouts = scene.Choose(this.options.Layouts);
    }

    internal IEnumerable<Page> Pages()
    {
        foreach (ScenePage layout in layouts)
        {
            Page page = Create(layout);
            yield return options.AsBitmap && device != DeviceKind.Pixels ? AsBitmap(page) : page;
        }
    }

    /// <summary>The names of the layouts that are pages.</summary>
    internal List<string> Titles => layouts.ConvertAll(static layout => layout.Name);

    internal Page PageAt(int index) => Create(layouts[index]);

    internal Page SinglePage()
    {
        if (layouts.Count > 1)
        {
            throw new RenderException(
                $"A {format} file holds one page, but {layouts.Count} layouts were asked for; name one of them.");
        }

        Page page = Create(layouts[0]);
        return options.AsBitmap && device != DeviceKind.Pixels ? AsBitmap(page) : page;
    }

    private Page Create(ScenePage layout)
    {
        DrawingList list = scene.Build(layout, options.Style(), engine);
        PaperSheet? sheet = layout.Sheet;
        if (sheet is PaperSheet paper && (options.ContentOnly ? !list.Bounds.IsEmpty : options.WholeLayoutContent))
        {
            Bounds2 all = options.ContentOnly ? list.Bounds : paper.Region;
            all.Add(list.Bounds);
            double grow = paper.Region.Width > 0 ? paper.WidthMm / paper.Region.Width : 1;
            sheet = new PaperSheet(all, all.Width * grow, all.Height * grow);
        }

        options.Notes.AddSkipped(list);
        options.Notes.SetGlyphs(engine);
        PageLayout place = PageLayout.Create(options.Request(), list.Bounds, sheet, sharedScale);
        if (!options.FitEachLayout)
        {
            sharedScale ??= place.Scale;
        }

        Verify(place);
        return new Page(layout.Name, place.Width, place.Height, list, Settings(place, sheet?.Region)) 
        {
            Overlay = Watermark(place),
            Notes = options.Notes,
        };
    }

    private void Verify(in PageLayout place)
    {
        string? reason = device == DeviceKind.Pixels ? RasterPage.Refuse(place.Width, place.Height) : null;
        if (!(place.Width <= LargestPage && place.Height <= LargestPage))
        {
            reason ??= $"A page of {place.Width:0} × {place.Height:0} units is too large: at most {LargestPage} on a side; " +
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
        UnitsPerMillimetre = options.UnitsPerMillimetre,
        Hairline = device == DeviceKind.Pixels ? HairlinePixels : HairlineMillimetres * options.UnitsPerMillimetre,
        LineScale = 1,
        Background = options.Background,
        PaintBackground = options.PaintBackground,
        Sharp = options.Sharp,
        Caps = options.Caps,
        Coarseness = options.Coarseness,
        ExactText = options.ExactText && (device == DeviceKind.Pixels || options.AsBitmap),
        Interpolation = options.Interpolation,
        Clip = clip,
    };

    /// <summary>A list in device units with the watermark along the diagonal, or null for none.</summary>
    private DrawingList? Watermark(in PageLayout place)
    {
        if (string.IsNullOrWhiteSpace(options.Watermark))
        {
            return null;
        }

        var list = new DrawingList { Ink = options.Ink };
        int font = engine.Font(FontSpec.Default with { Bold = true });
        double diagonal = Math.Sqrt((place.Width * place.Width) + (place.Height * place.Height));
        double advance = Math.Max(0.1, engine.Advance(font, options.Watermark));
        double em = Math.Min(0.7 * diagonal / advance, 0.25 * Math.Min(place.Width, place.Height));
        double cos = place.Width / diagonal;
        double sin = place.Height / diagonal;

        // Device units run down, the run's own up; it starts half its length before the middle of the page.
        Vec2 start = new Vec2(place.Width / 2, place.Height / 2)
            - (new Vec2(cos, -sin) * (advance * em / 2)) + (new Vec2(sin, cos) * (em * engine.CapRatio(font) / 2));
        var matrix = new Affine2(cos * em, -sin * em, -sin * em, -cos * em, start.X, start.Y);
        new Canvas(list, engine).Text(options.Watermark, font, matrix, 0, options.WatermarkColor, -1);
        return list;
    }

    /// <summary>The page again, its content drawn into pixels that fill it.</summary>
    private Page AsBitmap(Page page)
    {
        double perUnit = (options.BitmapResolution ?? BitmapPerInch) / (options.UnitsPerMillimetre * 25.4);
        double most = Math.Sqrt(MostBitmapPixels / (page.Width * page.Height));
        double k = Math.Min(perUnit, most);
        PaintSettings settings = page.Settings with
        {
            ToDevice = new Affine2(k, 0, 0, k, 0, 0) * page.Settings.ToDevice,
            UnitsPerMillimetre = page.Settings.UnitsPerMillimetre * k,
            Hairline = page.Settings.Hairline * k,
        };
        var large = new Page(page.Name, Math.Max(1, page.Width * k), Math.Max(1, page.Height * k), page.List, settings);
        using RasterPage raster = RasterPage.Render(engine, large);
        var list = new DrawingList();
        var place = new Affine2(page.Width, 0, 0, -page.Height, 0, page.Height);
        list.Image(
            new PlacedImage(raster.Width, raster.Height, raster.CopyPixels(), place, 1), -1, Bounds2.Of(0, 0, page.Width, page.Height));
        return page with { List = list, Settings = page.Settings with { ToDevice = Affine2.Identity, Clip = null, Interpolation = InterpolationMode.Default } };
    }
}
