using System;

namespace Korvan.CAD.Geometry;

/// <summary>A box in space; empty where its lowest point lies above its highest.</summary>
internal readonly record struct Bounds3(Vec3 Min, Vec3 Max)
{
    internal static Bounds3 Empty { get; } = new(
        new Vec3(double.PositiveInfinity, double.PositiveInfinity, double.PositiveInfinity),
        new Vec3(double.NegativeInfinity, double.NegativeInfinity, double.NegativeInfinity));

    internal bool IsEmpty => !(Min.X <= Max.X);

    internal Vec3 Center => (Min + Max) * 0.5;

    internal Bounds3 With(Vec3 p) => new(
        new Vec3(Math.Min(Min.X, p.X), Math.Min(Min.Y, p.Y), Math.Min(Min.Z, p.Z)),
        new Vec3(Math.Max(Max.X, p.X), Math.Max(Max.Y, p.Y), Math.Max(Max.Z, p.Z)));

    internal Bounds3 With(in Bounds3 other) => other.IsEmpty ? this : With(other.Min).With(other.Max);

    /// <summary>The box around the mapped corners of this one.</summary>
    internal Bounds3 Mapped(in Affine3 map)
    {
        Bounds3 box = Empty;
        for (int corner = 0; corner < 8 && !IsEmpty; corner++)
        {
            box = box.With(map.Point(new Vec3(
                (corner & 1) == 0 ? Min.X : Max.X,
                (corner & 2) == 0 ? Min.Y : Max.Y,
                (corner & 4) == 0 ? Min.Z : Max.Z)));
        }

        return box;
    }
}
