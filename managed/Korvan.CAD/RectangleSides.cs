using System.Numerics;

namespace Korvan.CAD;

/// <summary>The sides of a rectangle, with the geometry that whole and fractional coordinates share.</summary>
internal readonly record struct RectangleSides<T>(T Left, T Top, T Right, T Bottom)
    where T : struct, INumber<T>
{
    /// <summary>Gets whether a width or a height is negative.</summary>
    internal bool IsInverted => Right < Left || Bottom < Top;

    /// <summary>Gets the same area with positive width and height.</summary>
    internal RectangleSides<T> Normalized =>
        new(T.Min(Left, Right), T.Min(Top, Bottom), T.Max(Left, Right), T.Max(Top, Bottom));

    /// <summary>Returns the smallest rectangle that contains both.</summary>
    internal RectangleSides<T> Union(in RectangleSides<T> other) => new(
        T.Min(Left, other.Left), T.Min(Top, other.Top), T.Max(Right, other.Right), T.Max(Bottom, other.Bottom));

    /// <summary>Returns the common part; it is inverted where the rectangles lie apart.</summary>
    internal RectangleSides<T> Intersection(in RectangleSides<T> other) => new(
        T.Max(Left, other.Left), T.Max(Top, other.Top), T.Min(Right, other.Right), T.Min(Bottom, other.Bottom));

    internal bool Contains(T x, T y) => x >= Left && x < Right && y >= Top && y < Bottom;

    internal bool Contains(in RectangleSides<T> other) =>
        other.Left >= Left && other.Right <= Right && other.Top >= Top && other.Bottom <= Bottom;

    internal bool IntersectsWith(in RectangleSides<T> other) =>
        other.Left < Right && Left < other.Right && other.Top < Bottom && Top < other.Bottom;
}
