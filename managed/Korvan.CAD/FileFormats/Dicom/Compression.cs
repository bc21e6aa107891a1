using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>How the pixels of a DICOM file are stored.</summary>
public class Compression
{
    internal const int DefaultQuality = 90;

    private int _quality = DefaultQuality;

    /// <summary>Creates plain storage.</summary>
    public Compression()
    {
    }

    /// <summary>Creates a way of storage.</summary>
    /// <param name="type">The kind.</param>
    public Compression(CompressionType type) => Type = type;

    /// <summary>Gets or sets the kind.</summary>
    public CompressionType Type { get; set; }

    /// <summary>Gets or sets the quality of JPEG, 1 to 100; the other kinds keep every pixel exactly. 90 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int Quality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }
}
