using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Thin lines and small texts, which are drawn without the general stroker, and pages in bands.</summary>
public class ThinLineTests
{
    private const int Side = 120;

    [Fact]
    public void Thin_lines_are_those_of_the_general_stroker()
    {
        var random = new Random(3);
        for (int round = 0; round < 60; round++)
        {
            double At() => (random.NextDouble() * 160) - 20;
            PathBuffer path = new();
            path.MoveTo(new Vec2(At(), At()));
            path.LineTo(new Vec2(At(), At()));
            if (round % 3 == 1)
            {
                path.CurveTo(new Vec2(At(), At()), new Vec2(At(), At()), new Vec2(At(), At()));
            }

            if (round % 3 == 2)
            {
                path.LineTo(new Vec2(At(), At()));
                path.Close();
            }

            byte[] own = Drawn(path, withGeneralStroker: false);
            byte[] general = Drawn(path, withGeneralStroker: true);
            (double sum, double reference, int worst) = (0, 0, 0);
            for (int i = 0; i < own.Length; i++)
            {
                sum += 255 - own[i];
                reference += 255 - general[i];
                worst = Math.Max(worst, Math.Abs(own[i] - general[i]));
            }

            Assert.InRange(sum, (reference * 0.97) - 900, (reference * 1.03) + 900);

            // Corners differ in a pixel or two.
            Assert.InRange(worst, 0, 140);
        }
    }

    [Fact]
    public void Corners_of_faint_lines_are_no_darker_than_their_sides()
    {
        PathBuffer circle = new();
        circle.MoveTo(new Vec2(100, 60));
        for (int i = 1; i <= 200; i++)
        {
            circle.LineTo(new Vec2(60 + (40 * Math.Cos(i * Math.Tau / 200)), 60 + (40 * Math.Sin(i * Math.Tau / 200))));
        }

        byte[] pixels = Drawn(circle, withGeneralStroker: false, new Rgba(0, 0, 0, 128));
        Assert.InRange(Array.Find(pixels, static value => value < 150), 125, 149);
        Assert.DoesNotContain(pixels, static value => value < 125);
    }

    [Fact]
    public void Lines_from_far_outside_are_cut_to_their_clip()
    {
        var list = new DrawingList();
        PathBuffer box = Rectangle(30, 30, 60, 60);
        list.PushClip(box, evenOdd: false);
        PathBuffer path = new();
        path.MoveTo(new Vec2(-1e12, -1e12));
        path.LineTo(new Vec2(1e12, 1e12));
        path.LineTo(new Vec2(45, double.MaxValue / 4));
        list.Stroke(path, new StrokeAttributes { Color = Rgba.Black, Dash = -1 });
        list.PopClip();
        byte[] pixels = Render(list, 1);
        for (int y = 0; y < Side; y++)
        {
            for (int x = 0; x < Side; x++)
            {
                bool isInside = x is >= 30 and < 60 && y is >= 30 and < 60;
                Assert.True(isInside || pixels[(y * Side) + x] == 255, $"{x}, {y} is drawn");
            }
        }

        Assert.True(pixels[(45 * Side) + 45] < 200);
    }

    [Fact]
    public void Frames_along_the_border_of_the_page_have_their_whole_width()
    {
        var list = new DrawingList();
        list.Stroke(Rectangle(0, 0, Side, Side), new StrokeAttributes { Color = Rgba.Black, Dash = -1 });
        foreach (int bands in (int[])[1, 5])
        {
            byte[] pixels = Render(list, bands);
            int dark = Array.FindAll(pixels, static value => value < 64).Length;
            Assert.Equal((4 * Side) - 4, dark);
        }
    }

    [Fact]
    public void Bands_make_the_same_page()
    {
        var list = new DrawingList();
        using var engine = new TextEngine();
        var random = new Random(5);
        for (int i = 0; i < 300; i++)
        {
            double x = random.NextDouble() * Side;
            double y = random.NextDouble() * Side;
            var color = new Rgba((byte)random.Next(256), (byte)random.Next(256), 0, (byte)random.Next(100, 256));
            PathBuffer path = Rectangle(x, y, x + 20, y + 9);
            switch (i % 4)
            {
                case 0:
                    list.Fill(path, color, 0, evenOdd: true);
                    break;
                case 1:
                    list.Stroke(path, new StrokeAttributes { Color = color, LineWeight = i % 5, Dash = -1 });
                    break;
                case 2:
                    var matrix = new Affine2(6, 0, 0, -6, x, y);
                    list.Text(new TextRun("Ab", engine.Font(FontSpec.Default), matrix, 0), color, 0, path.Bounds);
                    break;
                default:
                    list.PushClip(Rectangle(x - 5, y - 5, x + 9, y + 30), evenOdd: false);
                    list.Stroke(path, new StrokeAttributes { Color = color, Dash = list.Dash([3, 2]) });
                    list.PopClip();
                    break;
            }
        }

        Assert.Equal(Render(list, 1, engine), Render(list, 5, engine));
    }

    [Fact]
    public void A_text_too_small_to_read_is_a_faint_bar()
    {
        var list = new DrawingList();
        using var engine = new TextEngine();
        int font = engine.Font(FontSpec.Default);
        var matrix = new Affine2(1.2, 0, 0, -1.2, 10, 50);
        double advance = engine.Advance(font, "The quick brown fox");
        list.Text(
            new TextRun("The quick brown fox", font, matrix, 0) { Advance = advance }, Rgba.Black, 0,
            Bounds2.Of(10, 48, 30, 50));
        byte[] pixels = Render(list, 1, engine);
        List<int> columns = [];
        for (int x = 0; x < Side; x++)
        {
            columns.AddRange(pixels[(49 * Side) + x] < 230 ? [x] : []);
        }

        Assert.InRange(columns.Count, (advance * 1.2) - 2, (advance * 1.2) + 3);
        Assert.InRange(columns[0], 9, 11);
    }

    private static PathBuffer Rectangle(double x0, double y0, double x1, double y1)
    {
        PathBuffer path = new();
        path.MoveTo(new Vec2(x0, y0));
        path.LineTo(new Vec2(x1, y0));
        path.LineTo(new Vec2(x1, y1));
        path.LineTo(new Vec2(x0, y1));
        path.Close();
        return path;
    }

    private static byte[] Drawn(PathBuffer path, bool withGeneralStroker, Rgba? color = null)
    {
        var list = new DrawingList();
        if (withGeneralStroker)
        {
            // A clip that is no box, around the whole page.
            PathBuffer triangle = new();
            triangle.MoveTo(new Vec2(-500, -500));
            triangle.LineTo(new Vec2(2000, -500));
            triangle.LineTo(new Vec2(-500, 2000));
            triangle.Close();
            list.PushClip(triangle, evenOdd: false);
        }

        list.Stroke(path, new StrokeAttributes { Color = color ?? Rgba.Black, Dash = -1 });
        if (withGeneralStroker)
        {
            list.PopClip();
        }

        return Render(list, 1);
    }

    /// <summary>The green of each pixel on white.</summary>
    private static byte[] Render(DrawingList list, int bands, TextEngine? engine = null)
    {
        using TextEngine? own = engine is null ? new TextEngine() : null;
        var settings = new PaintSettings
        {
            ToDevice = Affine2.Identity,
            UnitsPerMillimetre = 1,
            Hairline = 1,
            LineScale = 1,
            Background = Rgba.White,
            PaintBackground = true,
            Caps = LineCaps.Round,
        };
        using RasterPage page = RasterPage.Render(engine ?? own!, new Page("", Side, Side, list, settings), bands);
        var green = new byte[Side * Side];
        for (int y = 0; y < Side; y++)
        {
            ReadOnlySpan<byte> row = page.Row(y);
            for (int x = 0; x < Side; x++)
            {
                green[(y * Side) + x] = row[(x * 4) + 1];
            }
        }

        return green;
    }
}
