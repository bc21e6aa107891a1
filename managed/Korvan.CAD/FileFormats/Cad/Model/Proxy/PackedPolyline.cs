using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <summary>A polyline in bit codes, as drawing files of release 2000 hold their light polylines.</summary>
internal sealed record PackedPolyline(
    PolyVertex[] Vertices, Vec3 Normal, double Elevation, double Thickness, bool IsClosed)
{
    private const int HasNormal = 1;
    private const int HasThickness = 2;
    private const int HasConstantWidth = 4;
    private const int HasElevation = 8;
    private const int HasBulges = 16;
    private const int HasWidths = 32;
    private const int Closed = 512;
    private const int HasIdentifiers = 1024;

    /// <summary>Reads a polyline; null where the bytes end before it does.</summary>
    internal static PackedPolyline? Read(ReadOnlySpan<byte> data)
    {
        var bits = new BitReader(data);
        int flags = bits.Short();
        double width = (flags & HasConstantWidth) != 0 ? bits.Double() : 0;
        double elevation = (flags & HasElevation) != 0 ? bits.Double() : 0;
        double thickness = (flags & HasThickness) != 0 ? bits.Double() : 0;
        Vec3 normal = (flags & HasNormal) != 0 ? new Vec3(bits.Double(), bits.Double(), bits.Double()) : Vec3.UnitZ;
        int count = bits.Long();
        int bulges = (flags & HasBulges) != 0 ? bits.Long() : 0;
        int identifiers = (flags & HasIdentifiers) != 0 ? bits.Long() : 0;
        int widths = (flags & HasWidths) != 0 ? bits.Long() : 0;

        // Each vertex takes at least four bits, two for each of its coordinates.
        if (count < 0 || count > (long)data.Length * 2 || bulges > count || identifiers > count || widths > count)
        {
            return null;
        }

        var vertices = new PolyVertex[count];
        Vec2 last = default;
        for (int i = 0; i < count; i++)
        {
            last = i == 0
                ? new Vec2(bits.RawDouble(), bits.RawDouble())
                : new Vec2(bits.DoubleAfter(last.X), bits.DoubleAfter(last.Y));
            vertices[i] = new PolyVertex(last, width, width, 0);
        }

        for (int i = 0; i < bulges; i++)
        {
            vertices[i] = vertices[i] with { Bulge = bits.Double() };
        }

        for (int i = 0; i < identifiers; i++)
        {
            bits.Long();
        }

        for (int i = 0; i < widths; i++)
        {
            vertices[i] = vertices[i] with { StartWidth = bits.Double(), EndWidth = bits.Double() };
        }

        bool isWhole = !bits.IsShort && Array.TrueForAll(
            vertices, static v => double.IsFinite(v.Point.X + v.Point.Y + v.Bulge + v.StartWidth + v.EndWidth));
        return isWhole && normal.IsFinite && double.IsFinite(elevation + thickness)
            ? new PackedPolyline(vertices, normal, elevation, thickness, (flags & Closed) != 0)
            : null;
    }
}
