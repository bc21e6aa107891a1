namespace Korvan.CAD;

/// <content>Geometry.</content>
public partial struct Rectangle
{
    private readonly RectangleSides<int> Sides => new(Left, Top, Right, Bottom);

    /// <summary>Creates a rectangle from its four sides.</summary>
    /// <param name="left">The left side.</param>
    /// <param name="top">The top side.</param>
    /// <param name="right">The right side.</param>
    /// <param name="bottom">The bottom side.</param>
    /// <returns>The rectangle.</returns>
    public static Rectangle FromLeftTopRightBottom(int left, int top, int right, int bottom)
    {
        return new Rectangle(left, top, right - left, bottom - top);
    }

    /// <summary>Returns an enlarged copy of a rectangle; the centre stays.</summary>
    /// <param name="rect">The rectangle to start from; it is not changed.</param>
    /// <param name="x">How far the left and the right side move outwards; below 0 they move inwards.</param>
    /// <param name="y">How far the top and the bottom side move outwards; below 0 they move inwards.</param>
    /// <returns>The enlarged rectangle.</returns>
    public static Rectangle Inflate(Rectangle rect, int x, int y)
    {
        rect.Inflate(x, y);
        return rect;
    }

    /// <summary>Returns the intersection of two rectangles; <see cref="Empty"/> where they do not intersect.</summary>
    /// <param name="a">The first rectangle.</param>
    /// <param name="b">The second rectangle.</param>
    /// <returns>The intersection.</returns>
    public static Rectangle Intersect(Rectangle a, Rectangle b)
    {
        a.Intersect(b);
        return a;
    }

    /// <summary>Returns the smallest rectangle that contains two others.</summary>
    /// <param name="a">The first rectangle.</param>
    /// <param name="b">The second rectangle.</param>
    /// <returns>The union.</returns>
    public static Rectangle Union(Rectangle a, Rectangle b) => From(a.Sides.Union(b.Sides));

    /// <summary>Enlarges the rectangle; the centre stays.</summary>
    /// <param name="width">How far the left and the right side move outwards; below 0 they move inwards.</param>
    /// <param name="height">How far the top and the bottom side move outwards; below 0 they move inwards.</param>
    public void Inflate(int width, int height)
    {
        X -= width;
        Y -= height;
        Width += 2 * width;
        Height += 2 * height;
    }

    /// <summary>Enlarges the rectangle; the centre stays.</summary>
    /// <param name="size">How far the sides move outwards, horizontally and vertically.</param>
    public void Inflate(Size size) => Inflate(size.Width, size.Height);

    /// <summary>Replaces the rectangle by its intersection with another; it becomes <see cref="Empty"/> where they do
    /// not intersect.</summary>
    /// <param name="rect">The other rectangle.</param>
    public void Intersect(Rectangle rect)
    {
        RectangleSides<int> common = Sides.Intersection(rect.Sides);
        this = common.IsInverted ? Empty : From(common);
    }

    /// <summary>Moves the rectangle.</summary>
    /// <param name="x">How far to the right.</param>
    /// <param name="y">How far down.</param>
    public void Offset(int x, int y)
    {
        X += x;
        Y += y;
    }

    /// <summary>Makes width and height positive; the covered area stays.</summary>
    public void Normalize() => this = From(Sides.Normalized);

    /// <summary>Returns whether a point lies inside. The left and the top side belong to the rectangle, the right and
    /// the bottom side do not.</summary>
    /// <param name="point">The point.</param>
    /// <returns>Whether the point lies inside.</returns>
    public readonly bool Contains(Point point) => Sides.Contains(point.X, point.Y);

    /// <summary>Returns whether another rectangle lies wholly inside.</summary>
    /// <param name="rect">The other rectangle.</param>
    /// <returns>Whether it lies inside.</returns>
    public readonly bool Contains(Rectangle rect) => Sides.Contains(rect.Sides);

    /// <summary>Returns whether the intersection with another rectangle has an area.</summary>
    /// <param name="rect">The other rectangle.</param>
    /// <returns>Whether the rectangles intersect.</returns>
    public readonly bool IntersectsWith(Rectangle rect) => Sides.IntersectsWith(rect.Sides);

    private static Rectangle From(RectangleSides<int> s) => FromLeftTopRightBottom(s.Left, s.Top, s.Right, s.Bottom);
}
