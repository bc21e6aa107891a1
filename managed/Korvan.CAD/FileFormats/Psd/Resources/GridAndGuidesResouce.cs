using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The resource of grid and guides, number 1032. Positions are in pixels from the upper left corner, in steps
/// of 1/32.</summary>
public class GridAndGuidesResouce : ResourceBlock
{
    internal const int Number = 1032;
    private const int HeaderBytes = 16;
    private const int GuideBytes = 5;
    private const double Steps = 32;
    private const int DefaultCycle = 576;

    private int _gridCycleX = DefaultCycle;
    private int _gridCycleY = DefaultCycle;
    private double[] _vertical = [];
    private double[] _horizontal = [];

    /// <summary>Creates a block without guides.</summary>
    public GridAndGuidesResouce()
        : base(Number)
    {
    }

    /// <summary>Gets or sets the horizontal grid spacing in 1/32 pixel. 576 by default.</summary>
    public int GridCycleX
    {
        get => _gridCycleX;
        set
        {
            _gridCycleX = value;
            Change();
        }
    }

    /// <summary>Gets or sets the vertical grid spacing in 1/32 pixel. 576 by default.</summary>
    public int GridCycleY
    {
        get => _gridCycleY;
        set
        {
            _gridCycleY = value;
            Change();
        }
    }

    /// <summary>Gets or sets the positions of vertical guides along X, in pixels.</summary>
    public double[] VerticalGuides
    {
        get => (double[])_vertical.Clone();
        set => _vertical = Verified(value);
    }

    /// <summary>Gets or sets the positions of horizontal guides along Y, in pixels.</summary>
    public double[] HorizontalGuides
    {
        get => (double[])_horizontal.Clone();
        set => _horizontal = Verified(value);
    }

    /// <summary>Gets the number of guides.</summary>
    public int GuidesCount => _vertical.Length + _horizontal.Length;

    /// <inheritdoc/>
    public override byte[] ToBytes()
    {
        var data = new byte[HeaderBytes + (GuideBytes * GuidesCount)];
        BinaryPrimitives.WriteInt32BigEndian(data, 1);
        BinaryPrimitives.WriteInt32BigEndian(data.AsSpan(4), _gridCycleX);
        BinaryPrimitives.WriteInt32BigEndian(data.AsSpan(8), _gridCycleY);
        BinaryPrimitives.WriteInt32BigEndian(data.AsSpan(12), GuidesCount);
        int at = HeaderBytes;
        foreach ((double[] guides, byte direction) in new[] { (_vertical, (byte)0), (_horizontal, (byte)1) })
        {
            foreach (double guide in guides)
            {
                BinaryPrimitives.WriteInt32BigEndian(data.AsSpan(at), (int)Math.Round(guide * Steps));
                data[at + 4] = direction;
                at += GuideBytes;
            }
        }

        return data;
    }

    internal static GridAndGuidesResouce Read(ReadOnlySpan<byte> data)
    {
        int count = data.Length < HeaderBytes ? -1 : BinaryPrimitives.ReadInt32BigEndian(data[12..]);
        if (count < 0 || count > (data.Length - HeaderBytes) / GuideBytes)
        {
            throw new PsdImageResourceException(
                $"Resource {Number} has {data.Length} bytes, too few for {count} guides.");
        }

        List<double> vertical = [];
        List<double> horizontal = [];
        for (int i = 0; i < count; i++)
        {
            ReadOnlySpan<byte> guide = data[(HeaderBytes + (i * GuideBytes))..];
            (guide[4] == 0 ? vertical : horizontal).Add(BinaryPrimitives.ReadInt32BigEndian(guide) / Steps);
        }

        return new GridAndGuidesResouce
        {
            GridCycleX = BinaryPrimitives.ReadInt32BigEndian(data[4..]),
            GridCycleY = BinaryPrimitives.ReadInt32BigEndian(data[8..]),
            VerticalGuides = [.. vertical],
            HorizontalGuides = [.. horizontal],
        };
    }

    private double[] Verified(double[] value, [CallerMemberName] string member = "")
    {
        Verify.NotNull(value, member);
        foreach (double guide in value)
        {
            if (!(Math.Abs(guide) < int.MaxValue / Steps))
            {
                throw Verify.OutOfRange(member, guide, "A guide lies too far away to be stored.");
            }
        }

        Change();
        return (double[])value.Clone();
    }
}
