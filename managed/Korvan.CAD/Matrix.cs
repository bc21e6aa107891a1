using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Geometry;

namespace Korvan.CAD;

/// <summary>An affine map of the plane: x' = m11·x + m21·y + dx, y' = m12·x + m22·y + dy.</summary>
/// <remarks>The six numbers stand in the order m11, m12, m21, m22, dx, dy. A map that is put to another is done before
/// it, unless <see cref="MatrixOrder.Append"/> says otherwise.</remarks>
public class Matrix : DisposableObject, IEquatable<Matrix>
{
    private Affine2 _map = Affine2.Identity;

    /// <summary>Creates the map that leaves everything where it is.</summary>
    public Matrix()
    {
    }

    /// <summary>Creates a map from its six numbers.</summary>
    /// <param name="m11">The part of x in x'.</param>
    /// <param name="m12">The part of x in y'.</param>
    /// <param name="m21">The part of y in x'.</param>
    /// <param name="m22">The part of y in y'.</param>
    /// <param name="dx">What is added to x'.</param>
    /// <param name="dy">What is added to y'.</param>
    public Matrix(float m11, float m12, float m21, float m22, float dx, float dy)
    {
        _map = new Affine2(m11, m12, m21, m22, dx, dy);
    }

    /// <summary>Creates the map that takes a rectangle to a parallelogram.</summary>
    /// <param name="rect">The rectangle; it has an area.</param>
    /// <param name="points">Where its upper left, upper right and lower left corners go.</param>
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

        var toUnit = new Affine2(1.0 / rect.Width, 0, 0, 1.0 / rect.Height, -rect.X / rect.Width, -rect.Y / rect.Height);
        PointF origin = points[0];
        _map = new Affine2(
            points[1].X - origin.X, points[1].Y - origin.Y, points[2].X - origin.X, points[2].Y - origin.Y, origin.X, origin.Y)
            * toUnit;
    }

    /// <summary>Creates the map that takes a rectangle to a parallelogram.</summary>
    /// <param name="rect">The rectangle; it has an area.</param>
    /// <param name="points">Where its upper left, upper right and lower left corners go.</param>
    /// <exception cref="DataMissmatchError">There are not three points, or the rectangle has no area.</exception>
    public Matrix(Rectangle rect, Point[] points)
        : this(new RectangleF(rect.X, rect.Y, rect.Width, rect.Height), ToFloat(points))
    {
    }

    private Matrix(in Affine2 map)
    {
        _map = map;
    }

    /// <summary>Gets the six numbers: m11, m12, m21, m22, dx, dy.</summary>
    public float[] Elements => GetElements();

    /// <summary>Gets what is added to x'.</summary>
    public float OffsetX => (float)_map.X0;

    /// <summary>Gets what is added to y'.</summary>
    public float OffsetY => (float)_map.Y0;

    /// <summary>Gets whether the map leaves everything where it is.</summary>
    public bool IsIdentity => _map == Affine2.Identity;

    /// <summary>Gets whether there is a map that undoes this one.</summary>
    public bool IsInvertible => _map.TryInvert(out _);

    /// <summary>Gets by how much areas grow; below 0 where the map mirrors.</summary>
    public float Determinant => (float)_map.Determinant;

    /// <summary>Gives the six numbers: m11, m12, m21, m22, dx, dy.</summary>
    /// <returns>The six numbers.</returns>
    public float[] GetElements()
    {
        return [(float)_map.Xx, (float)_map.Yx, (float)_map.Xy, (float)_map.Yy, (float)_map.X0, (float)_map.Y0];
    }

    /// <summary>Gives a matrix of the same numbers.</summary>
    /// <returns>A matrix of the same numbers.</returns>
    public Matrix Clone() => new(_map);

    /// <summary>Makes this the map that leaves everything where it is.</summary>
    public void Reset() => _map = Affine2.Identity;

    /// <summary>Makes this the map that undoes what it was.</summary>
    /// <exception cref="InvalidOperationException">The map takes the plane to a line or a point.</exception>
    public void Invert()
    {
        if (!_map.TryInvert(out Affine2 inverse))
        {
            throw new InvalidOperationException($"{this} has no inverse: it takes the plane to a line or a point.");
        }

        _map = inverse;
    }

    /// <summary>Adds another map.</summary>
    /// <param name="matrix">The other map.</param>
    /// <param name="order">Whether it is done before or after this one.</param>
    public void Multiply(Matrix matrix, MatrixOrder order)
    {
        Verify.NotNull(matrix);
        Add(matrix._map, order);
    }

    /// <summary>Adds another map, to be done before this one.</summary>
    /// <param name="matrix">The other map.</param>
    public void Multiply(Matrix matrix) => Multiply(matrix, MatrixOrder.Prepend);

    /// <summary>Adds a change of size about the origin.</summary>
    /// <param name="scaleX">The factor along X.</param>
    /// <param name="scaleY">The factor along Y.</param>
    /// <param name="order">Whether it is done before or after this map.</param>
    public void Scale(float scaleX, float scaleY, MatrixOrder order) => Add(new Affine2(scaleX, 0, 0, scaleY, 0, 0), order);

    /// <summary>Adds a change of size about the origin, to be done before this map.</summary>
    /// <param name="scaleX">The factor along X.</param>
    /// <param name="scaleY">The factor along Y.</param>
    public void Scale(float scaleX, float scaleY) => Scale(scaleX, scaleY, MatrixOrder.Prepend);

    /// <summary>Adds a move.</summary>
    /// <param name="offsetX">How far along X.</param>
    /// <param name="offsetY">How far along Y.</param>
    /// <param name="order">Whether it is done before or after this map.</param>
    public void Translate(float offsetX, float offsetY, MatrixOrder order) => Add(new Affine2(1, 0, 0, 1, offsetX, offsetY), order);

    /// <summary>Adds a move, to be done before this map.</summary>
    /// <param name="offsetX">How far along X.</param>
    /// <param name="offsetY">How far along Y.</param>
    public void Translate(float offsetX, float offsetY) => Translate(offsetX, offsetY, MatrixOrder.Prepend);

    /// <summary>Adds a turn about the origin.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="order">Whether it is done before or after this map.</param>
    public void Rotate(float angle, MatrixOrder order) => RotateAt(angle, PointF.Empty, order);

    /// <summary>Adds a turn about the origin, to be done before this map.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    public void Rotate(float angle) => Rotate(angle, MatrixOrder.Prepend);

    /// <summary>Adds a turn about a point.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="point">The point that stays.</param>
    /// <param name="order">Whether it is done before or after this map.</param>
    public void RotateAt(float angle, PointF point, MatrixOrder order)
    {
        (double sin, double cos) = Math.SinCos(angle * Math.PI / 180);
        if (angle % 90 == 0)
        {
            (sin, cos) = (Math.Round(sin), Math.Round(cos)); // quarter turns leave no remainders
        }

        var turn = new Affine2(cos, sin, -sin, cos, 0, 0);
        Add(new Affine2(1, 0, 0, 1, point.X, point.Y) * turn * new Affine2(1, 0, 0, 1, -point.X, -point.Y), order);
    }

    /// <summary>Adds a turn about a point, to be done before this map.</summary>
    /// <param name="angle">The angle in degrees, from the X axis towards the Y axis.</param>
    /// <param name="point">The point that stays.</param>
    public void RotateAt(float angle, PointF point) => RotateAt(angle, point, MatrixOrder.Prepend);

    /// <summary>Adds a slant.</summary>
    /// <param name="shearX">How far X moves for each unit of Y.</param>
    /// <param name="shearY">How far Y moves for each unit of X.</param>
    /// <param name="order">Whether it is done before or after this map.</param>
    public void Shear(float shearX, float shearY, MatrixOrder order) => Add(new Affine2(1, shearY, shearX, 1, 0, 0), order);

    /// <summary>Adds a slant, to be done before this map.</summary>
    /// <param name="shearX">How far X moves for each unit of Y.</param>
    /// <param name="shearY">How far Y moves for each unit of X.</param>
    public void Shear(float shearX, float shearY) => Shear(shearX, shearY, MatrixOrder.Prepend);

    /// <summary>Gives where points go.</summary>
    /// <param name="points">The points.</param>
    /// <returns>Where points go.</returns>
    public PointF[] TransformPoints(PointF[] points) => Array.ConvertAll(points, p => Moved(p.X, p.Y, 1));

    /// <summary>Gives where points go, rounded to whole numbers.</summary>
    /// <param name="points">The points.</param>
    /// <returns>Where points go, rounded to whole numbers.</returns>
    public Point[] TransformPoints(Point[] points) => Array.ConvertAll(points, p =>
    {
        PointF moved = Moved(p.X, p.Y, 1);
        return new Point((int)MathF.Round(moved.X), (int)MathF.Round(moved.Y));
    });

    /// <summary>Gives what becomes of directions: the map without its move.</summary>
    /// <param name="vectors">The directions.</param>
    /// <returns>What becomes of directions.</returns>
    public PointF[] TransformVectors(PointF[] vectors) => Array.ConvertAll(vectors, p => Moved(p.X, p.Y, 0));

    /// <summary>Tells whether another map has the same numbers.</summary>
    /// <param name="other">The other map.</param>
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
