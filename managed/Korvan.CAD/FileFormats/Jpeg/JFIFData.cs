using System;
using System.Buffers.Binary;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>The JFIF header of a JPEG file (JFIF 1.02): its pixel density.</summary>
public class JFIFData
{
    private const double CentimetresPerInch = 2.54;

    private int _xDensity = 96;
    private int _yDensity = 96;

    /// <summary>Creates a header of 96 pixels per inch.</summary>
    public JFIFData()
    {
    }

    /// <summary>Gets or sets the unit of the densities. Pixels per inch by default.</summary>
    public JfifDensityUnits DensityUnits { get; set; } = JfifDensityUnits.PixelsPerInch;

    /// <summary>Gets or sets the density along X, 1 to 65535. 96 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public int XDensity
    {
        get => _xDensity;
        set => _xDensity = Verified(value);
    }

    /// <summary>Gets or sets the density along Y, 1 to 65535. 96 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public int YDensity
    {
        get => _yDensity;
        set => _yDensity = Verified(value);
    }

    /// <summary>Gets the JFIF version, the major number in the higher byte: 0x0102 for 1.02.</summary>
    public int Version { get; private init; } = 0x0102;

    /// <summary>Reads an APP0 segment; returns null where it is not JFIF.</summary>
    internal static JFIFData? Read(ReadOnlySpan<byte> data)
    {
        return data.Length < 12 || !data.StartsWith("JFIF\0"u8)
            ? null
            : new JFIFData
            {
                Version = BinaryPrimitives.ReadUInt16BigEndian(data[5..]),
                DensityUnits = (JfifDensityUnits)Math.Min(data[7], (byte)JfifDensityUnits.PixelsPerCm),
                _xDensity = BinaryPrimitives.ReadUInt16BigEndian(data[8..]),
                _yDensity = BinaryPrimitives.ReadUInt16BigEndian(data[10..]),
            };
    }

    internal static JFIFData Of(double horizontal, double vertical) => new()
    {
        _xDensity = (int)Math.Clamp(Math.Round(horizontal), 1, ushort.MaxValue),
        _yDensity = (int)Math.Clamp(Math.Round(vertical), 1, ushort.MaxValue),
    };

    /// <summary>Returns pixels per inch; 0 where the densities have no unit.</summary>
    internal (double X, double Y) PerInch()
    {
        double factor = DensityUnits switch
        {
            JfifDensityUnits.PixelsPerInch => 1,
            JfifDensityUnits.PixelsPerCm => CentimetresPerInch,
            _ => 0,
        };
        return (XDensity * factor, YDensity * factor);
    }

    internal byte[] Write()
    {
        byte[] data = [.. "JFIF\0"u8, (byte)(Version >> 8), (byte)Version, (byte)DensityUnits, 0, 0, 0, 0, 0, 0];
        BinaryPrimitives.WriteUInt16BigEndian(data.AsSpan(8), (ushort)XDensity);
        BinaryPrimitives.WriteUInt16BigEndian(data.AsSpan(10), (ushort)YDensity);
        return data;
    }

    private static int Verified(int value, [CallerMemberName] string member = "")
    {
        Verify.InRange(value, 1, ushort.MaxValue, member);
        return value;
    }
}
