using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Text;

/// <summary>Turns one measured piece of a line into runs and bars.</summary>
internal static class MTextPlacer
{
    private const double BarThickness = 0.06;
    private const double UnderlineDrop = 0.2;
    private const double OverlineRise = 1.2;
    private const double StrikeRise = 0.45;

    /// <summary>Extra space between characters, in ems: tracking is a factor of a typical advance of about 0.6
    /// em.</summary>
    internal static double LetterSpacing(MTextFormat format) =>
        format.Tracking is > 0 and not 1 ? (Math.Clamp(format.Tracking, 0.75, 4) - 1) * 0.6 : 0;

    /// <summary>The width of a string, in drawing units.</summary>
    internal static double WidthOf(TextEngine engine, string text, MTextFormat format)
    {
        int font = engine.Font(format.Font);
        double em = format.Height / engine.CapRatio(font) * format.WidthFactor;
        return engine.Advance(font, text, LetterSpacing(format)) * em;
    }

    internal static void Place(
        List<PlacedRun> runs, List<PlacedBar> bars, TextEngine engine, in LinePiece piece, double x, double baseline,
        double width, double lineHeight)
    {
        MTextFormat format = piece.Format;
        double y = baseline + (format.Align switch
        {
            StackAlign.Center => (lineHeight - format.Height) / 2,
            StackAlign.Top => lineHeight - format.Height,
            _ => 0,
        });
        switch (piece.Kind)
        {
            case MTextTokenKind.Word:
                runs.Add(Run(engine, piece.Text, format, x, y, piece.Width));
                break;
            case MTextTokenKind.Stack:
                PlaceStack(runs, bars, engine, piece, x, baseline, lineHeight);
                break;
        }

        AddBars(bars, format, x, x + width, y);
    }

    private static void PlaceStack(
        List<PlacedRun> runs, List<PlacedBar> bars, TextEngine engine, in LinePiece piece, double x, double baseline,
        double lineHeight)
    {
        MTextFormat format = piece.Format;
        double h = format.Height;
        double upperWidth = WidthOf(engine, piece.Text, format);
        double lowerWidth = WidthOf(engine, piece.Lower, format);
        double inset = h * 0.1;
        double center = x + (piece.Width / 2);
        if (piece.Divider == '#')
        {
            double upperX = x + (inset / 2);
            double lowerX = upperX + upperWidth + (h * 0.1);
            runs.Add(Run(engine, piece.Text, format, upperX, baseline + (h * 0.4), upperWidth));
            runs.Add(Run(engine, piece.Lower, format, lowerX, baseline - (h * 0.4), lowerWidth));
            double at = upperX + upperWidth + (h * 0.05);
            bars.Add(new PlacedBar(
                at - (h * 0.3), baseline - (h * 0.4), at + (h * 0.3), baseline + (h * 1.4), h * BarThickness,
                format.Color));
            return;
        }

        // The divider lies at half the height of the surrounding capitals unless the stack stands on the baseline.
        double middle = format.Align switch
        {
            StackAlign.Baseline => baseline + (h * 1.25),
            StackAlign.Top => baseline + lineHeight - (h * 1.25),
            _ => baseline + (lineHeight / 2),
        };
        bool bar = piece.Divider == '/';
        double upperAt = bar ? center - (upperWidth / 2) : x + inset;
        double lowerAt = bar ? center - (lowerWidth / 2) : x + inset;
        runs.Add(Run(engine, piece.Text, format, upperAt, middle + (h * 0.25), upperWidth));
        runs.Add(Run(engine, piece.Lower, format, lowerAt, middle - (h * 1.25), lowerWidth));
        if (bar)
        {
            bars.Add(new PlacedBar(
                x + (inset / 2), middle, x + piece.Width - (inset / 2), middle, h * BarThickness, format.Color));
        }
    }

    private static PlacedRun Run(
        TextEngine engine, string text, MTextFormat format, double x, double y, double width)
    {
        int font = engine.Font(format.Font);
        double em = format.Height / engine.CapRatio(font);
        double slant = Math.Tan(format.ObliqueDegrees * Math.PI / 180);
        return new PlacedRun(
            text, font, x, y, em, format.WidthFactor, slant, LetterSpacing(format), format.Color, width);
    }

    private static void AddBars(List<PlacedBar> bars, MTextFormat format, double x0, double x1, double y)
    {
        double h = format.Height;
        AddBar(bars, format, format.Underline, x0, x1, y - (h * UnderlineDrop));
        AddBar(bars, format, format.Overline, x0, x1, y + (h * OverlineRise));
        AddBar(bars, format, format.Strike, x0, x1, y + (h * StrikeRise));
    }

    private static void AddBar(List<PlacedBar> bars, MTextFormat format, bool wanted, double x0, double x1, double y)
    {
        if (wanted)
        {
            bars.Add(new PlacedBar(x0, y, x1, y, format.Height * BarThickness, format.Color));
        }
    }
}
