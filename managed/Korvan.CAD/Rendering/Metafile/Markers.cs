using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>The five standard markers (ISO/IEC 8632-1, 7.5.3).</summary>
internal static class Markers
{
    internal const int Dot = 1;
    private const int Plus = 2;
    private const int Circle = 4;
    private const int Cross = 5;

    /// <summary>Whether the marker is one of the five; all others are drawn as asterisks.</summary>
    internal static bool Knows(int type) => type is >= Dot and <= Cross;

    /// <summary>Adds a marker of a type and a half size at a point.</summary>
    internal static void Add(in PathPen pen, int type, Vec2 at, double half)
    {
        switch (type)
        {
            case Dot:
                pen.Circle(at, half);
                break;
            case Circle:
                pen.Circle(at, half);
                break;
            case Plus:
                Line(pen, at, new Vec2(half, 0));
                Line(pen, at, new Vec2(0, half));
                break;
            case Cross:
                Line(pen, at, new Vec2(half, half));
                Line(pen, at, new Vec2(-half, half));
                break;
            default:
                const double slope = 0.8660254037844386; // three lines, 60 degrees apart
                Line(pen, at, new Vec2(0, half));
                Line(pen, at, new Vec2(half * slope, half / 2));
                Line(pen, at, new Vec2(half * slope, -half / 2));
                break;
        }
    }

    private static void Line(in PathPen pen, Vec2 at, Vec2 arm)
    {
        pen.MoveTo(at - arm);
        pen.LineTo(at + arm);
    }
}
