using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// What is at the ends of dimension lines: a block of the drawing, or one of those that every drawing has by name. Its
/// tip is at the origin and it points along X, with a length of one unit.
/// </summary>
/// <param name="Name">The name of the block; empty for the closed filled arrowhead.</param>
/// <param name="IsBlock">Whether the drawing has the block.</param>
internal sealed record DimensionArrow(string Name, bool IsBlock)
{
    private const double HalfWidth = 1.0 / 6;
    private const double Half = 0.5;
    private const double Quarter = 0.25;
    private const double SmallDot = 0.125;
    private const double TickWidth = 0.15;

    internal static readonly DimensionArrow ClosedFilled = new("", false);

    private static readonly double OpenHalfWidth = Math.Tan(Math.PI / 12);
    private static readonly double DatumHalfWidth = Math.Tan(Math.PI / 6);

    private static readonly Dictionary<string, Action<ArrowPen>> Shapes = new(StringComparer.OrdinalIgnoreCase)
    {
        [""] = static pen => pen.Triangle(-1, HalfWidth, 0, isFilled: true),
        ["Closed"] = static pen => pen.WithTail(-0.0).Triangle(-1, HalfWidth, 0, isFilled: false),
        ["ClosedBlank"] = static pen => pen.Triangle(-1, HalfWidth, 0, isFilled: false),
        ["Dot"] = static pen => pen.WithTail(-Half).Dot(Half),
        ["DotSmall"] = static pen => pen.Dot(SmallDot),
        ["DotBlank"] = static pen => pen.WithTail(-Half).Circle(Half),
        ["Small"] = static pen => pen.Circle(Quarter),
        ["Origin"] = static pen => pen.WithTail(0).Circle(Half),
        ["Origin2"] = static pen => pen.WithTail(-Half).Circle(Half).Circle(Quarter),
        ["Open"] = static pen => pen.WithTail(0).Hook(-1, HalfWidth),
        ["Open90"] = static pen => pen.WithTail(0).Hook(-Half, Half),
        ["Open30"] = static pen => pen.WithTail(0).Hook(-1, OpenHalfWidth),
        ["Oblique"] = static pen => pen.Line(new Vec2(-Half, -Half), new Vec2(Half, Half)),
        ["ArchTick"] = static pen => pen.WideLine(new Vec2(-Half, -Half), new Vec2(Half, Half), TickWidth),
        ["Integral"] = static pen => pen.Integral(),
        ["BoxBlank"] = static pen => pen.WithTail(-Half).Box(Half, isFilled: false),
        ["BoxFilled"] = static pen => pen.WithTail(-Half).Box(Half, isFilled: true),
        ["DatumBlank"] = static pen => pen.Triangle(0, DatumHalfWidth, -1, isFilled: false),
        ["DatumFilled"] = static pen => pen.Triangle(0, DatumHalfWidth, -1, isFilled: true),
        ["None"] = static _ => { },
    };

    /// <summary>Those through which the dimension line goes on to the extension line.</summary>
    private static readonly HashSet<string> Crossed = new(StringComparer.OrdinalIgnoreCase)
    {
        "DotSmall", "Small", "Oblique", "ArchTick", "Integral", "None",
    };

    /// <summary>Gets whether it is a stroke across, beyond which dimension lines can run.</summary>
    internal bool IsStroke => !IsBlock && Name.ToUpperInvariant() is "OBLIQUE" or "ARCHTICK";

    /// <summary>Gets the distance of its tip to the dimension line, in lengths of the arrowhead.</summary>
    internal double Setback => Crossed.Contains(Name) ? 0 : 1;

    /// <summary>Returns an arrowhead by the name of its block, which those of all drawings have with an
    /// underscore.</summary>
    internal static DimensionArrow Of(string block, bool isInDrawing)
    {
        string name = block.StartsWith('_') ? block[1..] : block;
        return Shapes.ContainsKey(name) ? new DimensionArrow(name, false)
            : isInDrawing ? new DimensionArrow(block, true)
            : ClosedFilled;
    }

    /// <summary>Draws it with its tip at a point.</summary>
    internal void Draw(DimensionPen pen, Vec2 tip, Vec2 direction, double size)
    {
        if (!(size > 0))
        {
            return;
        }

        if (IsBlock)
        {
            pen.Block(Name, tip, Math.Atan2(direction.Y, direction.X), size);
            return;
        }

        Shapes[Name](new ArrowPen(pen, tip, direction * size));
    }

    /// <summary>Draws in the coordinates of an arrowhead.</summary>
    private readonly record struct ArrowPen(DimensionPen Pen, Vec2 Tip, Vec2 Axis)
    {
        private double Size => Axis.Length;

        private double Angle => Math.Atan2(Axis.Y, Axis.X);

        internal ArrowPen WithTail(double from) => Line(new Vec2(from, 0), new Vec2(-1, 0));

        internal ArrowPen Line(Vec2 from, Vec2 to)
        {
            Pen.Line(Map(from), Map(to));
            return this;
        }

        internal void Hook(double x, double halfWidth) =>
            Line(new Vec2(x, halfWidth), default).Line(default, new Vec2(x, -halfWidth));

        /// <summary>A triangle by the place of its base and of its point.</summary>
        internal void Triangle(double foot, double halfWidth, double point, bool isFilled)
        {
            (Vec2 a, Vec2 b, Vec2 tip) = (new Vec2(foot, halfWidth), new Vec2(foot, -halfWidth), new Vec2(point, 0));
            if (isFilled)
            {
                Pen.Fill(Map(a), Map(b), Map(tip), Map(tip));
                return;
            }

            Line(a, b).Line(b, tip).Line(tip, a);
        }

        internal void Box(double half, bool isFilled)
        {
            (Vec2 a, Vec2 b) = (new Vec2(-half, -half), new Vec2(half, -half));
            (Vec2 c, Vec2 d) = (new Vec2(half, half), new Vec2(-half, half));
            if (isFilled)
            {
                Pen.Fill(Map(a), Map(b), Map(c), Map(d));
                return;
            }

            Line(a, b).Line(b, c).Line(c, d).Line(d, a);
        }

        internal ArrowPen Circle(double radius)
        {
            Pen.Arc(Tip, radius * Size, 0, Math.Tau);
            return this;
        }

        // A ring whose line is as wide as its diameter.
        internal void Dot(double radius)
        {
            Vec2 half = new(radius / 2, 0);
            Pen.Polyline([Map(half), Map(half * -1)], [1, 1], radius * Size, CadLwPolylineFlag.Closed);
        }

        internal void WideLine(Vec2 from, Vec2 to, double width) =>
            Pen.Polyline([Map(from), Map(to)], [0, 0], width * Size, CadLwPolylineFlag.None);

        internal void Integral()
        {
            const double radius = 0.4547;
            Vec2 center = new(0.4454, -0.0914);
            double start = Angle + Angles.Radians(102);
            Pen.Arc(Map(center), radius * Size, start, Angles.Radians(66.4));
            Pen.Arc(Map(center * -1), radius * Size, start + Math.PI, Angles.Radians(66.4));
        }

        private Vec2 Map(Vec2 point) => Tip + (Axis * point.X) + (Axis.Left * point.Y);
    }
}
