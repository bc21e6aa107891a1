using System;
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
    internal static double LetterSpacing(in MTextFormat format) =>
        format.Tracking is > 0 and not 1 ? (Math.Clamp(format.Tracking, 0.75, 4) - 1) * 0.6 : 0;

    internal static void Place(
        MTextLayout layout, TextEngine engine, in LinePiece piece, double x, double baseline, double width,
        double lineHeight)
    {
        MTextFormat format = piece.Token.Format;
        double y = baseline + (format.Align switch
        {
            StackAlign.Center => (lineHeight - format.Height) / 2,
            StackAlign.Top => lineHeight - format.Height,
            _ => 0,
        });
        switch (piece.Token.Kind)
        {
            case MTextTokenKind.Word:
                layout.Runs.Add(Run(engine, piece.Token.Text, format, x, y, piece.Width));
                break;
            case MTextTokenKind.Stack:
                PlaceStack(layout, engine, piece, x, baseline, lineHeight);
                break;
        }

        AddBars(layout, format, x, x + width, y);
    }

    private static void PlaceStack(
        MTextLayout layout, TextEngine engine, in LinePiece piece, double x, double baseline, double lineHeight)
    {
        MTextToken token = piece.Token;
        MTextFormat format = token.Format;
        double h = format.Height;
        double inset = h * 0.1;
        double center = x + (piece.Width / 2);
        if (token.Divider == '#')
        {
            double upperX = x + (inset / 2);
            double lowerX = upperX + piece.UpperWidth + (h * 0.1);
            layout.Runs.Add(Run(engine, token.Text, format, upperX, baseline + (h * 0.4), piece.UpperWidth));
            layout.Runs.Add(Run(engine, token.Lower, format, lowerX, baseline - (h * 0.4), piece.LowerWidth));
            double at = upperX + piece.UpperWidth + (h * 0.05);
            layout.Bars
                .Add(new PlacedBar(at - (h * 0.3), baseline - (h * 0.4), at + (h * 0.3), baseline
                + (h * 1.4), h * BarThickness, format.Color));
            return;
        }

        // The divider lies at half the height of the surrounding capitals unless the stack stands on the baseline.
        double middle = format.Align switch
        {
            StackAlign.Baseline => baseline + (h * 1.25),
            StackAlign.Top => baseline + lineHeight - (h * 1.25),
            _ => baseline + (lineHeight / 2),
        };
        bool bar = token.Divider == '/';
        double upperAt = bar ? center - (piece.UpperWidth / 2) : x + inset;
        double lowerAt = bar ? center - (piece.LowerWidth / 2) : x + inset;
        layout.Runs.Add(Run(engine, token.Text, format, upperAt, middle + (h * 0.25), piece.UpperWidth));
        layout.Runs.Add(Run(engine, token.Lower, format, lowerAt, middle - (h * 1.25), piece.LowerWidth));
        if (bar)
        {
            layout.Bars
                .Add(new PlacedBar(x + (inset / 2), middle, x
                + piece.Width - (inset / 2), middle, h * BarThickness, format.Color));
        }
    }

    private static PlacedRun Run(
        TextEngine engine, string text, in MTextFormat format, double x, double y, double width)
    {
        int font = engine.Font(format.Font);
        double em = format.Height / engine.CapRatio(font);
        double slant = Math.Tan(format.ObliqueDegrees * Math.PI / 180);
        return new PlacedRun(
            text, font, x, y, em, format.WidthFactor, slant, LetterSpacing(format), format.Color, width);
    }

    private static void AddBars(MTextLayout layout, in MTextFormat format, double x0, double x1, double y)
    {
        double h = format.Height;
        AddBar(layout, format, format.Underline, x0, x1, y - (h * UnderlineDrop));
        AddBar(layout, format, format.Overline, x0, x1, y + (h * OverlineRise));
        AddBar(layout, format, format.Strike, x0, x1, y + (h * StrikeRise));
    }

    private static void AddBar(MTextLayout layout, in MTextFormat format, bool wanted, double x0, double x1, double y)
    {
        if (wanted)
        {
            layout.Bars.Add(new PlacedBar(x0, y, x1, y, format.Height * BarThickness, format.Color));
        }
    }
}
