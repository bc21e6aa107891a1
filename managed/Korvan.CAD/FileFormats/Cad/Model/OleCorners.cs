using System;
using System.Buffers.Binary;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The corners of the frame of an embedded document. Its data begins with a mark and four points, clockwise
/// from the upper left corner.</summary>
internal static class OleCorners
{
    private const ushort Mark = 0x5580;
    private const int PointLength = 3 * sizeof(double);
    private const int End = sizeof(ushort) + (4 * PointLength);

    /// <summary>Returns the corners that the data states; null for none.</summary>
    internal static (Cad3DPoint UpperLeft, Cad3DPoint LowerRight)? Read(ReadOnlySpan<byte> data) =>
        HasCorners(data) ? (PointAt(data, 0), PointAt(data, 2)) : null;

    /// <summary>Returns the data with other corners; the same data where it has none, or these.</summary>
    internal static byte[] With(byte[] data, Cad3DPoint upperLeft, Cad3DPoint lowerRight)
    {
        if (Read(data) is not var (first, third)
            || (first.ToVec3() == upperLeft.ToVec3() && third.ToVec3() == lowerRight.ToVec3()))
        {
            return data;
        }

        byte[] changed = [.. data];
        Set(changed, 0, upperLeft.X, upperLeft.Y, upperLeft.Z);
        Set(changed, 1, lowerRight.X, upperLeft.Y, upperLeft.Z);
        Set(changed, 2, lowerRight.X, lowerRight.Y, lowerRight.Z);
        Set(changed, 3, upperLeft.X, lowerRight.Y, lowerRight.Z);
        return changed;
    }

    private static bool HasCorners(ReadOnlySpan<byte> data) =>
        data.Length >= End && BinaryPrimitives.ReadUInt16LittleEndian(data) == Mark;

    private static Cad3DPoint PointAt(ReadOnlySpan<byte> data, int corner)
    {
        ReadOnlySpan<byte> point = data.Slice(sizeof(ushort) + (corner * PointLength), PointLength);
        return new Cad3DPoint(
            BinaryPrimitives.ReadDoubleLittleEndian(point),
            BinaryPrimitives.ReadDoubleLittleEndian(point[sizeof(double)..]),
            BinaryPrimitives.ReadDoubleLittleEndian(point[(2 * sizeof(double))..]));
    }

    private static void Set(byte[] data, int corner, params ReadOnlySpan<double> coordinates)
    {
        Span<byte> point = data.AsSpan(sizeof(ushort) + (corner * PointLength), PointLength);
        for (int i = 0; i < coordinates.Length; i++)
        {
            BinaryPrimitives.WriteDoubleLittleEndian(point[(i * sizeof(double))..], coordinates[i]);
        }
    }
}
