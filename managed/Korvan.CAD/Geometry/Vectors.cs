using System;

namespace Korvan.CAD.Geometry;

internal readonly record struct Vec2(double X, double Y)
{
    internal double Length => Math.Sqrt((X * X) + (Y * Y));

    /// <summary>This vector rotated by 90° counterclockwise.</summary>
    internal Vec2 Left => new(-Y, X);

    // Written out: the comparison that records are given asks a comparer for each number.
    public bool Equals(Vec2 other) => X == other.X && Y == other.Y;

    public override int GetHashCode() => HashCode.Combine(X, Y);

    public static Vec2 operator +(Vec2 a, Vec2 b) => new(a.X + b.X, a.Y + b.Y);

    public static Vec2 operator -(Vec2 a, Vec2 b) => new(a.X - b.X, a.Y - b.Y);

    public static Vec2 operator *(Vec2 a, double k) => new(a.X * k, a.Y * k);

    internal static double Cross(Vec2 a, Vec2 b) => (a.X * b.Y) - (a.Y * b.X);

    internal static double Dot(Vec2 a, Vec2 b) => (a.X * b.X) + (a.Y * b.Y);

    internal static Vec2 Polar(double angle, double radius = 1) =>
        new(radius * Math.Cos(angle), radius * Math.Sin(angle));

    internal static Vec2 Lerp(Vec2 a, Vec2 b, double t) => new(a.X + ((b.X - a.X) * t), a.Y + ((b.Y - a.Y) * t));

    /// <summary>The unit vector, or zero for a vector without a direction.</summary>
    internal Vec2 Unit()
    {
        double length = Length;
        return length > 0 ? new Vec2(X / length, Y / length) : default;
    }
}

internal readonly record struct Vec3(double X, double Y, double Z)
{
    internal static readonly Vec3 UnitX = new(1, 0, 0);
    internal static readonly Vec3 UnitY = new(0, 1, 0);
    internal static readonly Vec3 UnitZ = new(0, 0, 1);

    internal double Length => Math.Sqrt((X * X) + (Y * Y) + (Z * Z));

    internal Vec2 Xy => new(X, Y);

    internal bool IsFinite => double.IsFinite(X) && double.IsFinite(Y) && double.IsFinite(Z);

    public bool Equals(Vec3 other) => X == other.X && Y == other.Y && Z == other.Z;

    public override int GetHashCode() => HashCode.Combine(X, Y, Z);

    public static Vec3 operator +(Vec3 a, Vec3 b) => new(a.X + b.X, a.Y + b.Y, a.Z + b.Z);

    public static Vec3 operator -(Vec3 a, Vec3 b) => new(a.X - b.X, a.Y - b.Y, a.Z - b.Z);

    public static Vec3 operator -(Vec3 a) => new(-a.X, -a.Y, -a.Z);

    public static Vec3 operator *(Vec3 a, double k) => new(a.X * k, a.Y * k, a.Z * k);

    internal static double Dot(Vec3 a, Vec3 b) => (a.X * b.X) + (a.Y * b.Y) + (a.Z * b.Z);

    internal static Vec3 Cross(Vec3 a, Vec3 b) =>
        new((a.Y * b.Z) - (a.Z * b.Y), (a.Z * b.X) - (a.X * b.Z), (a.X * b.Y) - (a.Y * b.X));

    internal Vec3 Unit()
    {
        double length = Length;
        return length > 0 ? this * (1 / length) : default;
    }
}
