using System;

namespace Korvan.CAD.Geometry;

/// <summary>
/// An affine map of space, kept as the images of the three axes and of the origin. Cubic curves are affine
/// invariant, so a circle in a stretched and mirrored block needs no case of its own: its Béziers are mapped.
/// </summary>
internal readonly struct Affine3
{
    internal readonly Vec3 AxisX;
    internal readonly Vec3 AxisY;
    internal readonly Vec3 AxisZ;
    internal readonly Vec3 Origin;

    internal Affine3(Vec3 axisX, Vec3 axisY, Vec3 axisZ, Vec3 origin)
    {
        AxisX = axisX;
        AxisY = axisY;
        AxisZ = axisZ;
        Origin = origin;
    }

    internal static Affine3 Identity => new(Vec3.UnitX, Vec3.UnitY, Vec3.UnitZ, default);

    internal bool IsIdentity =>
        AxisX == Vec3.UnitX && AxisY == Vec3.UnitY && AxisZ == Vec3.UnitZ && Origin == default;

    /// <summary>Gets whether the map changes the sense of rotation.</summary>
    internal bool IsMirror => Vec3.Dot(Vec3.Cross(AxisX, AxisY), AxisZ) < 0;

    internal bool IsFinite => AxisX.IsFinite && AxisY.IsFinite && AxisZ.IsFinite && Origin.IsFinite;

    /// <summary>The side of the square that has the area of the mapped unit square: the scale of lengths in the
    /// plane.</summary>
    internal double PlaneScale => Math.Sqrt(Math.Abs((AxisX.X * AxisY.Y) - (AxisX.Y * AxisY.X)));

    internal static Affine3 Translation(Vec3 by) => new(Vec3.UnitX, Vec3.UnitY, Vec3.UnitZ, by);

    internal static Affine3 Scaling(double x, double y, double z) =>
        new(new Vec3(x, 0, 0), new Vec3(0, y, 0), new Vec3(0, 0, z), default);

    internal static Affine3 RotationZ(double angle)
    {
        (double sin, double cos) = Math.SinCos(angle);
        return new Affine3(new Vec3(cos, sin, 0), new Vec3(-sin, cos, 0), Vec3.UnitZ, default);
    }

    /// <summary>First <paramref name="inner"/>, then <paramref name="outer"/>.</summary>
    public static Affine3 operator *(Affine3 outer, Affine3 inner) => new(
        outer.Vector(inner.AxisX),
        outer.Vector(inner.AxisY),
        outer.Vector(inner.AxisZ),
        outer.Point(inner.Origin));

    /// <summary>Finds the map back, by Cramer's rule; there is none where the axes are in one plane.</summary>
    internal bool TryInvert(out Affine3 inverse)
    {
        double volume = Vec3.Dot(AxisX, Vec3.Cross(AxisY, AxisZ));
        if (volume == 0 || !double.IsFinite(1 / volume))
        {
            inverse = Identity;
            return false;
        }

        Vec3 x = Vec3.Cross(AxisY, AxisZ) * (1 / volume);
        Vec3 y = Vec3.Cross(AxisZ, AxisX) * (1 / volume);
        Vec3 z = Vec3.Cross(AxisX, AxisY) * (1 / volume);
        var linear = new Affine3(new Vec3(x.X, y.X, z.X), new Vec3(x.Y, y.Y, z.Y), new Vec3(x.Z, y.Z, z.Z), default);
        inverse = new Affine3(linear.AxisX, linear.AxisY, linear.AxisZ, -linear.Vector(Origin));
        return inverse.IsFinite;
    }

    internal Vec3 Vector(Vec3 v) => (AxisX * v.X) + (AxisY * v.Y) + (AxisZ * v.Z);

    internal Vec3 Point(Vec3 p) => Vector(p) + Origin;

    internal Vec2 Project(double x, double y, double z) => new(
        (AxisX.X * x) + (AxisY.X * y) + (AxisZ.X * z) + Origin.X,
        (AxisX.Y * x) + (AxisY.Y * y) + (AxisZ.Y * z) + Origin.Y);

    internal Vec2 Project(Vec3 p) => Project(p.X, p.Y, p.Z);

    internal Vec2 ProjectVector(double x, double y) =>
        new((AxisX.X * x) + (AxisY.X * y), (AxisX.Y * x) + (AxisY.Y * y));
}
