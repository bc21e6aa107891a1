using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <content>Values that consist of others, and lists.</content>
internal abstract partial class BitExchange
{
    private const int TwoThousand = 2000;
    private const double DegreesPerRadian = 180 / Math.PI;

    /// <summary>Carries an angle: degrees in the object, radians in the file.</summary>
    internal double Angle(double degrees)
    {
        double radians = BitDouble(degrees / DegreesPerRadian);
        return IsReading ? ToDegrees(radians) : degrees;
    }

    /// <summary>Carries an angle of eight bytes.</summary>
    internal double RawAngle(double degrees)
    {
        double radians = RawDouble(degrees / DegreesPerRadian);
        return IsReading ? ToDegrees(radians) : degrees;
    }

    /// <summary>Carries a number that is a flag (B).</summary>
    internal int Flag(int value)
    {
        bool isSet = Bit(value != 0);
        return IsReading ? (isSet ? 1 : 0) : value;
    }

    /// <summary>Carries the elevation of points that have one together (BD).</summary>
    internal void Elevation(params ReadOnlySpan<Cad3DPoint> points)
    {
        double elevation = BitDouble(points[0].Z);
        SetElevation(elevation, points);
    }

    /// <summary>Carries points of one plane: their elevation (BD), and of each X and Y (2RD).</summary>
    internal void FlatPoints(params ReadOnlySpan<Cad3DPoint> points)
    {
        Elevation(points);
        foreach (Cad3DPoint point in points)
        {
            RawPoint2(point);
        }
    }

    /// <summary>Gives points their elevation, where they are read.</summary>
    internal void SetElevation(double elevation, params ReadOnlySpan<Cad3DPoint> points)
    {
        foreach (Cad3DPoint point in IsReading ? points : [])
        {
            point.Z = elevation;
        }
    }

    /// <summary>Carries a thickness (BT).</summary>
    internal double Thickness(double value) =>
        Release >= TwoThousand && Bit(value == 0) ? 0 : BitDouble(value);

    /// <summary>Carries an extrusion direction (BE).</summary>
    internal void Extrusion(Cad3DPoint direction)
    {
        if (Release < TwoThousand || !Bit(direction.Is(0, 0, 1)))
        {
            Point3(direction);
            return;
        }

        if (IsReading)
        {
            (direction.X, direction.Y, direction.Z) = (0, 0, 1);
        }
    }

    /// <summary>Carries a point (3BD).</summary>
    internal void Point3(Cad3DPoint point)
    {
        point.X = BitDouble(point.X);
        point.Y = BitDouble(point.Y);
        point.Z = BitDouble(point.Z);
    }

    /// <summary>Carries a point of eight bytes a coordinate (3RD).</summary>
    internal void RawPoint3(Cad3DPoint point)
    {
        point.X = RawDouble(point.X);
        point.Y = RawDouble(point.Y);
        point.Z = RawDouble(point.Z);
    }

    /// <summary>Carries a point (2BD).</summary>
    internal void Point2(Cad2DPoint point)
    {
        point.X = BitDouble(point.X);
        point.Y = BitDouble(point.Y);
    }

    /// <summary>Carries X and Y of a point (2BD).</summary>
    internal void Point2(Cad3DPoint point)
    {
        point.X = BitDouble(point.X);
        point.Y = BitDouble(point.Y);
    }

    /// <summary>Carries a point of eight bytes a coordinate (2RD).</summary>
    internal void RawPoint2(Cad2DPoint point)
    {
        point.X = RawDouble(point.X);
        point.Y = RawDouble(point.Y);
    }

    /// <summary>Carries X and Y of a point of eight bytes a coordinate (2RD).</summary>
    internal void RawPoint2(Cad3DPoint point)
    {
        point.X = RawDouble(point.X);
        point.Y = RawDouble(point.Y);
    }

    /// <summary>Carries a point by its differences from another one (2DD).</summary>
    internal void PointAfter(Cad2DPoint point, Cad2DPoint before)
    {
        point.X = DoubleAfter(point.X, before.X);
        point.Y = DoubleAfter(point.Y, before.Y);
    }

    /// <summary>Carries a point by its differences from another one (3DD).</summary>
    internal void PointAfter(Cad3DPoint point, Cad3DPoint before)
    {
        point.X = DoubleAfter(point.X, before.X);
        point.Y = DoubleAfter(point.Y, before.Y);
        point.Z = DoubleAfter(point.Z, before.Z);
    }

    /// <summary>Carries the number of items that follow (BL).</summary>
    internal int CountLong(int count) => Verify(BitLong(count));

    /// <summary>Carries the number of items that follow (BS).</summary>
    internal int CountShort(int count) => Verify((ushort)BitShort(Fitting(count, ushort.MaxValue)));

    /// <summary>Carries the number of items that follow (RC).</summary>
    internal int CountByte(int count) => Verify(RawByte(Fitting(count, byte.MaxValue)));

    /// <summary>Carries bytes after their number (BL).</summary>
    internal byte[] Block(byte[] value) => Bytes(value, CountLong(value.Length));

    /// <summary>Returns the item of a list whose fields follow; an object that takes values over gets a new
    /// one.</summary>
    internal T Item<T>(IList<T> items, int index)
        where T : class, new()
    {
        if (IsReading && index >= items.Count)
        {
            items.Add(new T());
        }

        return items[index];
    }

    /// <summary>Makes a list as long as the values that follow.</summary>
    internal void Resize<T>(List<T> values, int count)
    {
        if (IsReading)
        {
            values.Clear();
            CollectionsMarshal.SetCount(values, count);
        }
    }

    internal void Doubles(List<double> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = BitDouble(values[i]);
        }
    }

    /// <summary>Carries a matrix of four rows; one without items is the identity.</summary>
    internal void Matrix(List<double> items)
    {
        const int size = 4;
        bool isPresent = IsReading || items.Count == size * size;
        Resize(items, size * size);
        for (int i = 0; i < size * size; i++)
        {
            double value = BitDouble(!IsReading && isPresent ? items[i] : i % (size + 1) == 0 ? 1 : 0);
            if (IsReading)
            {
                items[i] = value;
            }
        }
    }

    internal void Points3(IList<Cad3DPoint> points, int count)
    {
        for (int i = 0; i < count; i++)
        {
            Point3(Item(points, i));
        }
    }

    internal void Handles(HandleRole role, IList<string> handles, int count)
    {
        for (int i = 0; i < count; i++)
        {
            string handle = Handle(role, i < handles.Count ? handles[i] : "0");
            if (IsReading)
            {
                handles.Add(handle);
            }
        }
    }

    // Whole degrees stay whole: what the conversions of both directions add is taken off, and no more.
    private static double ToDegrees(double radians)
    {
        const double roundingError = 2e-15;
        double degrees = radians * DegreesPerRadian;
        double rounded = Math.Round(degrees, 10);
        return Math.Abs(degrees - rounded) < roundingError * Math.Abs(degrees) ? rounded : degrees;
    }

    private int Fitting(int count, int most) =>
        IsReading || count <= most ? count : throw Fault($"{count} items, where the format has room for {most}");
}
