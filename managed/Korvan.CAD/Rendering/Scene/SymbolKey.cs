using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>What a block looks like depends on: two references with the same key differ by their place and rotation.
/// </summary>
internal readonly struct SymbolKey : IEquatable<SymbolKey>
{
    private readonly BlockInfo _block;
    private readonly LayerInfo _layer;
    private readonly ViewportScope? _viewport;
    private readonly Pen _pen;
    private readonly SymbolShape _shape;

    internal SymbolKey(BlockInfo block, LayerInfo layer, ViewportScope? viewport, in Pen pen, in SymbolShape shape)
    {
        (_block, _layer, _viewport, _pen, _shape) = (block, layer, viewport, pen, shape);
    }

    public bool Equals(SymbolKey other) =>
        ReferenceEquals(_block, other._block) && ReferenceEquals(_layer, other._layer)
            && ReferenceEquals(_viewport, other._viewport) && _shape == other._shape && _pen == other._pen;

    public override bool Equals(object? obj) => obj is SymbolKey other && Equals(other);

    public override int GetHashCode() =>
        HashCode.Combine(RuntimeHelpers.GetHashCode(_block), RuntimeHelpers.GetHashCode(_layer), _shape, _pen.Color);
}

/// <summary>What a map does to a block but rotate and move it: the image of the first axis, which is rotated to the
/// right, and those of the others, as shares of the longest. Single precision takes maps as the same that differ by
/// rounding.</summary>
internal readonly record struct SymbolShape(float Size, float Along, float YAlong, float YUp, float ZAlong, float ZUp)
{
    private const int Digits = 7;

    /// <summary>Splits a map.</summary>
    /// <param name="map">From a block to the page.</param>
    /// <param name="shape">What is the same for all places.</param>
    /// <param name="place">The rotation and translation.</param>
    internal static bool TryCreate(in Affine3 map, out SymbolShape shape, out Affine2 place)
    {
        (shape, place) = (default, default);
        double along = Math.Sqrt((map.AxisX.X * map.AxisX.X) + (map.AxisX.Y * map.AxisX.Y));
        (double cos, double sin) = (map.AxisX.X / along, map.AxisX.Y / along);
        double yAlong = (cos * map.AxisY.X) + (sin * map.AxisY.Y);
        double yUp = (cos * map.AxisY.Y) - (sin * map.AxisY.X);
        double zAlong = (cos * map.AxisZ.X) + (sin * map.AxisZ.Y);
        double zUp = (cos * map.AxisZ.Y) - (sin * map.AxisZ.X);
        double size = Math.Max(Math.Max(along, Math.Abs(yAlong) + Math.Abs(yUp)), Math.Abs(zAlong) + Math.Abs(zUp));
        if (!(along > 1e-6 * size) || !double.IsFinite(size))
        {
            return false;
        }

        float Share(double value) => (float)Math.Round(value / size, Digits) + 0f;
        shape = new SymbolShape(
            (float)size, Share(along), Share(yAlong), Share(yUp), Share(zAlong), Share(zUp));
        place = new Affine2(cos, sin, -sin, cos, map.Origin.X, map.Origin.Y);
        return true;
    }
}
