using System;

namespace Korvan.CAD;

/// <content>What is done with rectangles.</content>
public partial struct RectangleF
{
    /// <summary>Makes a rectangle from its four sides.</summary>
    /// <param name="left">The left side.</param>
    /// <param name="top">The upper side.</param>
    /// <param name="right">The right side.</param>
    /// <param name="bottom">The lower side.</param>
    /// <returns>A rectangle from its four sides.</returns>
    public static RectangleF FromLeftTopRightBottom(float left, float top, float right, float bottom)
    {
        return new RectangleF(left, top, right - left, bottom - top);
    }

    /// <summary>Gives a rectangle that is larger on all sides.</summary>
    /// <param name="rect">The rectangle to start from; it stays as it is.</param>
    /// <param name="x">How far the left and the right side are moved out; below 0 they are moved in.</param>
    /// <param name="y">How far the upper and the lower side are moved out.</param>
    /// <returns>A rectangle that is larger on all sides.</returns>
    public static RectangleF Inflate(RectangleF rect, float x, float y)
    {
        rect.Inflate(x, y);
        return rect;
    }

    /// <summary>Gives the part that two rectangles share; <see cref="Empty"/> when they do not meet.</summary>
    /// <param name="a">One rectangle.</param>
    /// <param name="b">The other.</param>
    /// <returns>The part that two rectangles share.</returns>
    public static RectangleF Intersect(RectangleF a, RectangleF b)
    {
        a.Intersect(b);
        return a;
    }

    /// <summary>Gives the smallest rectangle that holds two others.</summary>
    /// <param name="a">One rectangle.</param>
    /// <param name="b">The other.</param>
    /// <returns>The smallest rectangle that holds two others.</returns>
    public static RectangleF Union(RectangleF a, RectangleF b)
    {
        return FromLeftTopRightBottom(
            Math.Min(a.Left, b.Left), Math.Min(a.Top, b.Top), Math.Max(a.Right, b.Right), Math.Max(a.Bottom, b.Bottom));
    }

    /// <summary>Moves all sides out; the middle stays.</summary>
    /// <param name="width">How far the left and the right side are moved out; below 0 they are moved in.</param>
    /// <param name="height">How far the upper and the lower side are moved out.</param>
    public void Inflate(float width, float height)
    {
        X -= width;
        Y -= height;
        Width += 2 * width;
        Height += 2 * height;
    }

    /// <summary>Moves all sides out; the middle stays.</summary>
    /// <param name="size">How far the sides are moved out, across and along.</param>
    public void Inflate(SizeF size) => Inflate(size.Width, size.Height);

    /// <summary>Keeps the part that lies in another rectangle; nothing is left when they do not meet.</summary>
    /// <param name="rect">The other rectangle.</param>
    public void Intersect(RectangleF rect)
    {
        float left = Math.Max(Left, rect.Left);
        float top = Math.Max(Top, rect.Top);
        float right = Math.Min(Right, rect.Right);
        float bottom = Math.Min(Bottom, rect.Bottom);
        this = right < left || bottom < top ? Empty : FromLeftTopRightBottom(left, top, right, bottom);
    }

    /// <summary>Moves the rectangle.</summary>
    /// <param name="x">How far to the right.</param>
    /// <param name="y">How far down.</param>
    public void Offset(float x, float y)
    {
        X += x;
        Y += y;
    }

    /// <summary>Makes width and height positive; the rectangle covers the same place.</summary>
    public void Normalize()
    {
        this = FromLeftTopRightBottom(
            Math.Min(Left, Right), Math.Min(Top, Bottom), Math.Max(Left, Right), Math.Max(Top, Bottom));
    }

    /// <summary>Tells whether a point lies inside; the left and the upper side belong to the rectangle, the right and
    /// the lower do not.</summary>
    /// <param name="point">The point.</param>
    /// <returns>Whether a point lies inside.</returns>
    public readonly bool Contains(PointF point)
    {
        return point.X >= Left && point.X < Right && point.Y >= Top && point.Y < Bottom;
    }

    /// <summary>Tells whether another rectangle lies wholly inside.</summary>
    /// <param name="rect">The other rectangle.</param>
    /// <returns>Whether another rectangle lies wholly inside.</returns>
    public readonly bool Contains(RectangleF rect)
    {
        return rect.Left >= Left && rect.Right <= Right && rect.Top >= Top && rect.Bottom <= Bottom;
    }

    /// <summary>Tells whether there is a place that lies in both rectangles.</summary>
    /// <param name="rect">The other rectangle.</param>
    /// <returns>Whether there is a place that lies in both rectangles.</returns>
    public readonly bool IntersectsWith(RectangleF rect)
    {
        return rect.Left < Right && Left < rect.Right && rect.Top < Bottom && Top < rect.Bottom;
    }
}
