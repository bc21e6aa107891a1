using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Geometry;

namespace Korvan.CAD;

/// <summary>An affine transformation of the plane: x' = m11·x + m21·y + dx, y' = m12·x + m22·y + dy.</summary>
/// <remarks>The elements are in the order m11, m12, m21, m22, dx, dy. A transformation that is combined with another is
/// applied before it, unless <see cref="MatrixOrder.Append"/> is given.</remarks>
public class Matrix : DisposableObject, IEquatable<Matrix>
{
    private Affine2 _map = Affine2.Identity;

    /// <summary>Creates the identity.</summary>
    public Matrix()
    {
    }

    /// <summary>Creates a transformation from its six elements.</summary>
    /// <param name="m11">The coefficient of x in x'.</param>
    /// <param name="m12">The coefficient of x in y'.</param>
    /// <param name="m21">The coefficient of y in x'.</param>
    /// <param name="m22">The coefficient of y in y'.</param>
    /// <param name="dx">The translation along X.</param>
    /// <param name="dy">The translation along Y.</param>
    public Matrix(float m11, float m12, float m21, float m22, float dx, float dy)
    {
        _map = new Affine2(m11, m12, m21, m22, dx, dy);
    }

    /// <summary>Creates the transformation that maps a rectangle to a parallelogram.</summary>
    /// <param name="rect">The rectangle; its area is not 0.</param>
    /// <param name="points">The images of its upper left, upper right and lower left corners.</param>
    /// <exception cref="DataMissmatchError">There are not three points, or the rectangle has no area.</exception>
    public Matrix(RectangleF rect, PointF[] points)
    {
        Verify.NotNull(points);
        if (points.Length != 3)
        {
            throw new DataMissmatchError($"A parallelogram is given by three corners, not by {points.Length}.");
        }

        if (rect.Width == 0 || rect.Height == 0)
        {
            throw new DataMissmatchError($"{rect} has no area, so that no map takes it to a parallelogram.");
        }

        var toUnit =
            new Affine2(1.0 / rect.Width, 0, 0, 1.0 / rect.Height, -rect.X / rect.Width, -rect.Y / rect.Height);
        PointF origin = points[0];
        _map = new Affine2(
            points[1].X - origin.X, points[1].Y - origin.Y, points[2].X - origin.X, points[2].Y - origin.Y, origin.X,
            origin.Y)
            * toUnit;
    }

    /// <summary>Creates the transformation that maps a rectangle to a parallelogram.</summary>
    /// <param name="rect">The rectangle; its area is not 0.</param>
    /// <param name="points">The images of its upper left, upper right and lower left corners.</param>
    /// <exception cref="DataMissmatchError">There are not three points, or the rectangle has no area.</exception>
    public Matrix(Rectangle rect, Point[] points)
        : this(new RectangleF(rect.X, rect.Y, rect.Width, rect.Height), ToFloat(points))
    {
    }

    private Matrix(in Affine2 map)
    {
        _map = map;
    }

    /// <summary>Gets the six elements: m11, m12, m21, m22, dx, dy.</summary>
    public float[] Elements => GetElements();

    /// <summary>Gets the translation along X.</summary>
    public float OffsetX => (float)_map.X0;

    /// <summary>Gets the translation along Y.</summary>
    public float OffsetY => (float)_map.Y0;

    /// <summary>Gets whether this is the identity.</summary>
    public bool IsIdentity => _map == Affine2.Identity;

    /// <summary>Gets whether the transformation has an inverse.</summary>
    public bool IsInvertible => _map.TryInvert(out _);

    /// <summary>Gets the determinant, the factor of areas; below 0 for transformations with a reflection.</summary>
    public float Determinant => (float)_map.Determinant;

    /// <summary>Returns the six elements: m11, m12, m21, m22, dx, dy.</summary>
    /// <returns>The elements.</returns>
    public float[] GetElements()
    {
        return [(float)_map.Xx, (float)_map.Yx, (float)_map.Xy, (float)_map.Yy, (float)_map.X0, (float)_map.Y0];
    }

    /// <summary>Returns a copy.</summary>
    /// <returns>The copy.</returns>
    public Matrix Clone() => new(_map);

    /// <summary>Resets the matrix to the identity.</summary>
    public void Reset() => _map = Affine2.Identity;

    /// <summary>Inverts the transformation.</summary>
    /// <exception cref="InvalidOperationException">The transformation has no inverse.</exception>
    public void Invert()
    {
        if (!_map.TryInvert(out Affine2 inverse))
        {
            throw new InvalidOperationException($"{this} has no inverse: it takes the plane to a line or a point.");
        }

        _map = inverse;
    }

    /// <summary>Combines with another transformation.</summary>
    /// <param name="matrix">The other transformation.</param>
    /// <param name="order">Whether it is applied before or after this one.</param>
    public void Multiply(Matrix matrix, MatrixOrder order)
    {
        Verify.NotNull(matrix);
        Add(matrix._map, order);
    }

    /// <summary>Combines with another transformation, which is applied before this one.</summary>
    /// <param name="matrix">The other transformation.</param>
    public void Multiply(Matrix matrix) => Multiply(matrix, MatrixOrder.Prepend);

    /// <summary>Adds a scaling about the origin.</summary>
    /// <param name="scaleX">The factor along X.</param>
    /// <param name="scaleY">The factor along Y.</param>
    /// <param name="order">Whether it is applied before or after this transformation.</param>
    public void Scale(float scaleX, float scaleY, MatrixOrder order) =>
        Add(new Affine2(scaleX, 0, 0, scaleY, 0, 0), order);

    /// <summary>Adds a scaling about the origin, applied before this transformation.</summary>
    /// <param name="scaleX">The factor along X.</param>
    /// <param name="scaleY">The factor along Y.</param>
    public void Scale(float scaleX, float scaleY) => Scale(scaleX, scaleY, MatrixOrder.Prepend);

    /// <summary>Adds a translation.</summary>
    /// <param name="offsetX">How far along X.</param>
    /// <param name="offsetY">How far along Y.</param>
    /// <param name="order">Whether it is applied before or after this transformation.</param>
    public void Translate(float offsetX, float offsetY, MatrixOrder order) =>
        Add(new Affine2(1, 0, 0, 1, offsetX, offsetY), order);

    /// <summary>Adds a translation, applied before this transformation.</summary>
    /// <param name="offsetX">How far along X.</param>
    /// <param name="offsetY">How far along Y.</param>
    public void Translate(float offsetX, float offsetY) => Translate(offsetX, offsetY, MatrixOrder.Prepend);

    /// <summary>Adds a rotation about the origin.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="order">Whether it is applied before or after this transformation.</param>
    public void Rotate(float angle, MatrixOrder order) => RotateAt(angle, PointF.Empty, order);

    /// <summary>Adds a rotation about the origin, applied before this transformation.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    public void Rotate(float angle) => Rotate(angle, MatrixOrder.Prepend);

    /// <summary>Adds a rotation about a point.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="point">The centre of rotation.</param>
    /// <param name="order">Whether it is applied before or after this transformation.</param>
    public void RotateAt(float angle, PointF point, MatrixOrder order)
    {
        (double sin, double cos) = Math.SinCos(angle * Math.PI / 180);
        if (angle % 90 == 0)
        {
            (sin, cos) = (Math.Round(sin), Math.Round(cos)); // exact for multiples of 90 degrees
        }

        var turn = new Affine2(cos, sin, -sin, cos, 0, 0);
        Add(new Affine2(1, 0, 0, 1, point.X, point.Y) * turn * new Affine2(1, 0, 0, 1, -point.X, -point.Y), order);
    }

    /// <summary>Adds a rotation about a point, applied before this transformation.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="point">The centre of rotation.</param>
    public void RotateAt(float angle, PointF point) => RotateAt(angle, point, MatrixOrder.Prepend);

    /// <summary>Adds a shear.</summary>
    /// <param name="shearX">How far X moves for each unit of Y.</param>
    /// <param name="shearY">How far Y moves for each unit of X.</param>
    /// <param name="order">Whether it is applied before or after this transformation.</param>
    public void Shear(float shearX, float shearY, MatrixOrder order) =>
        Add(new Affine2(1, shearY, shearX, 1, 0, 0), order);

    /// <summary>Adds a shear, applied before this transformation.</summary>
    /// <param name="shearX">How far X moves for each unit of Y.</param>
    /// <param name="shearY">How far Y moves for each unit of X.</param>
    public void Shear(float shearX, float shearY) => Shear(shearX, shearY, MatrixOrder.Prepend);

    /// <summary>Transforms points.</summary>
    /// <param name="points">The points.</param>
    /// <returns>The transformed points.</returns>
    public PointF[] TransformPoints(PointF[] points) => Array.ConvertAll(points, p => Moved(p.X, p.Y, 1));

    /// <summary>Transforms points and rounds them to whole numbers.</summary>
    /// <param name="points">The points.</param>
    /// <returns>The transformed points.</returns>
    public Point[] TransformPoints(Point[] points) => Array.ConvertAll(points, p =>
    {
        PointF moved = Moved(p.X, p.Y, 1);
        return new Point((int)MathF.Round(moved.X), (int)MathF.Round(moved.Y));
    });

    /// <summary>Transforms vectors, without the translation.</summary>
    /// <param name="vectors">The vectors.</param>
    /// <returns>The transformed vectors.</returns>
    public PointF[] TransformVectors(PointF[] vectors) => Array.ConvertAll(vectors, p => Moved(p.X, p.Y, 0));

    /// <summary>Determines whether another transformation has the same elements.</summary>
    /// <param name="other">The other transformation.</param>
    /// <returns>Whether another map has the same numbers.</returns>
    public bool Equals(Matrix? other) => other is not null && _map == other._map;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as Matrix);

    /// <inheritdoc/>
    public override int GetHashCode() => _map.GetHashCode();

    /// <inheritdoc/>
    public override string ToString()
    {
        float[] e = GetElements();
        return FormattableString.Invariant($"Matrix({e[0]}, {e[1]}, {e[2]}, {e[3]}, {e[4]}, {e[5]})");
    }

    private static PointF[] ToFloat(Point[] points)
    {
        Verify.NotNull(points);
        return Array.ConvertAll(points, p => new PointF(p.X, p.Y));
    }

    private void Add(in Affine2 map, MatrixOrder order) => _map = order == MatrixOrder.Append ? map * _map : _map * map;

    private PointF Moved(double x, double y, double place)
    {
        return new PointF(
            (float)((_map.Xx * x) + (_map.Xy * y) + (_map.X0 * place)),
            (float)((_map.Yx * x) + (_map.Yy * y) + (_map.Y0 * place)));
    }
}
