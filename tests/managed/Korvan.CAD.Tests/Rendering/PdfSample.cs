using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using System.Text.RegularExpressions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Documents for tests: a page with everything a display list can hold, and what a document says.</summary>
internal static class PdfSample
{
    internal const int Width = 300;
    internal const int Height = 200;

    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Blue = new(0, 0, 255);

    /// <summary>Strokes with each style, fills, gradients, images, clips and texts on three layers.</summary>
    internal static DrawingList List(TextEngine engine, int? maxStored = null, Action<DrawingList>? drain = null)
    {
        var list = new DrawingList { MaxStored = maxStored, Drain = drain };
        int walls = list.Layer("walls");
        int notes = list.Layer("Möbel (alt)");
        foreach ((StrokeStyle ends, double y) in ((StrokeStyle, double)[])[
            (new(LineCaps.Butt, LineJoins.Miter), 10), (new(LineCaps.Square, LineJoins.Bevel), 40),
            (new(LineCaps.Round, LineJoins.Round), 70)])
        {
            var style = new StrokeAttributes
            {
                Color = Red,
                LineWeight = 2,
                Dash = y == 70 ? list.Dash([8, 5]) : -1,
                DashOffset = 3,
                Layer = walls,
                Style = list.StyleIndex(ends),
            };
            list.Stroke(Path(new Vec2(10, y), new Vec2(40, y + 20), new Vec2(70, y)), style);
        }

        var curve = new PathBuffer();
        curve.MoveTo(new Vec2(10, 110));
        curve.CurveTo(new Vec2(30, 190), new Vec2(50, 80), new Vec2(70, 140));
        list.Stroke(
            curve, new StrokeAttributes { Color = Blue.WithAlpha(128), LineWeight = 3, Dash = -1, Layer = notes });
        list.Fill(Box(80, 10, 130, 60), Blue, walls, evenOdd: false);
        list.Fill(Box(100, 30, 150, 80), Red.WithAlpha(128), notes, evenOdd: true);
        GradientStop[] stops = [new(0, Red), new(0.4, Rgba.White), new(0.4, Blue), new(1, Rgba.Black)];
        GradientStop[] fading = [new(0.2, Blue), new(1, Blue.WithAlpha(0))];
        list.Fill(Box(80, 90, 140, 130), Red, walls, false,
            new Gradient(false, 0, 0, new Affine2(30, 0, 0, 20, 110, 110), stops));
        list.Fill(Box(80, 140, 140, 190), Red, walls, false,
            new Gradient(true, 0.3, 0, new Affine2(30, 0, 0, 25, 110, 165), fading));
        list.PushClip(Box(160, 10, 200, 60), evenOdd: false);
        list.Fill(Box(150, 0, 190, 90), new Rgba(0, 128, 0), notes, evenOdd: false);
        list.PopClip();
        for (int i = 0; i < 2; i++)
        {
            var place = new Affine2(30, 5, -5, 30, 165 + (40 * i), 80);
            list.Image(new PlacedImage(2, 2, Pixels, place, 1) { Sharp = true }, walls,
                Bounds2.Of(160, 80, 240, 115));
        }

        AddText(list, engine, "Office ÄΩ", new Affine2(16, 0, 0, 16, 150, 130), notes);
        AddText(list, engine, "mirrored", new Affine2(-16, 0, 4, 16, 285, 160), walls);
        return list;
    }

    internal static Page PageOf(DrawingList list) => new("Plan (A)", Width, Height, list, new PaintSettings
    {
        ToDevice = new Affine2(1, 0, 0, -1, 0, Height),
        UnitsPerMillimetre = 72 / 25.4,
        LineScale = 1,
        Hairline = 0.4,
        Background = Rgba.White,
        PaintBackground = true,
        Caps = LineCaps.Round,
        Interpolation = InterpolationMode.NearestNeighbor,
    });

    internal static byte[] Write(TextEngine engine, IEnumerable<Page> pages, PdfSettings? settings = null)
    {
        using var output = new MemoryStream();
        PdfDocument.Write(output, engine, pages, settings ?? new PdfSettings());
        return output.ToArray();
    }

    internal static string ToFile(byte[] document)
    {
        string file = Tools.TempFile(".pdf");
        File.WriteAllBytes(file, document);
        return file;
    }

    /// <summary>All objects of a document as plain text, streams without compression.</summary>
    internal static string Plain(string file)
    {
        string plain = Tools.TempFile(".txt");
        Tools.Run("qpdf", "--qdf", "--object-streams=disable", "--normalize-content=n", file, plain);
        string text = Encoding.Latin1.GetString(File.ReadAllBytes(plain));
        File.Delete(plain);
        return text;
    }

    internal static int Count(string text, string pattern) => Regex.Count(text, pattern, RegexOptions.Singleline);

    internal static PathBuffer Box(double x0, double y0, double x1, double y1)
    {
        PathBuffer path = Path(new Vec2(x0, y0), new Vec2(x1, y0), new Vec2(x1, y1), new Vec2(x0, y1));
        path.Close();
        return path;
    }

    internal static PathBuffer Path(params Vec2[] points)
    {
        var path = new PathBuffer();
        path.MoveTo(points[0]);
        Array.ForEach(points[1..], path.LineTo);
        return path;
    }

    internal static void AddText(DrawingList list, TextEngine engine, string text, Affine2 matrix, int layer = -1,
        FontSpec? font = null, double spacing = 0) =>
        list.Text(new TextRun(text, engine.Font(font ?? FontSpec.Default), matrix, spacing), Rgba.Black, layer,
            Bounds2.Of(matrix.X0, matrix.Y0, matrix.X0, matrix.Y0));

    /// <summary>Blue first, alpha multiplied in: red, half of green, blue, nothing.</summary>
    private static readonly byte[] Pixels = [0, 0, 255, 255, 0, 128, 0, 128, 255, 0, 0, 255, 0, 0, 0, 0];
}
