using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>How one list is put on one surface.</summary>
internal readonly record struct PaintSettings
{
    /// <summary>The widest stroke of a character, as a share of its height.</summary>
    private const double MaxStrokeShare = 0.14;

    public PaintSettings()
    {
    }

    /// <summary>Drawing units to device units; the device's y runs down.</summary>
    internal required Affine2 ToDevice { get; init; }

    /// <summary>Device units in a millimetre of the page.</summary>
    internal required double UnitsPerMillimetre { get; init; }

    /// <summary>The thinnest line, in device units.</summary>
    internal double Hairline { get; init; }

    /// <summary>All line weights are multiplied by this.</summary>
    internal double LineScale { get; init; }

    internal Rgba Background { get; init; }

    internal bool PaintBackground { get; init; }

    /// <summary>Shapes and text without grey edges.</summary>
    internal bool Sharp { get; init; }

    internal LineCaps Caps { get; init; }

    /// <summary>How far flattened curves may be from the curves, as a factor on the default.</summary>
    internal double Coarseness { get; init; } = 1;

    /// <summary>Texts are filled as exact outlines, not placed glyph by glyph on whole pixels.</summary>
    internal bool ExactText { get; init; }

    internal InterpolationMode Interpolation { get; init; }

    /// <summary>The part of the drawing that may show, in drawing units; null for all of it.</summary>
    internal Bounds2? Clip { get; init; }

    /// <summary>Ends and joins of lines that have none of their own.</summary>
    internal StrokeStyle StrokeStyle => new(Caps, LineJoins.Round);

    /// <summary>The width of a line in device units.</summary>
    internal double WidthOf(in DisplayItem item)
    {
        double unit = item.WeightInUnits ? Math.Sqrt(Math.Abs(ToDevice.Determinant)) : LineScale * UnitsPerMillimetre;
        double width = item.LineWeight * unit;
        if (item.TextHeight > 0 && !Sharp)
        {
            // Wider strokes would fill small characters.
            double most = item.TextHeight * MaxStrokeShare * Math.Sqrt(Math.Abs(ToDevice.Determinant));
            return Math.Min(Math.Max(width, Hairline), Math.Max(most, Hairline / 2));
        }

        return Math.Max(width, Hairline);
    }
}
