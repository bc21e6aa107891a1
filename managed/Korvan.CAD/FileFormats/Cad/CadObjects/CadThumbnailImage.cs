using System;
using System.Buffers.Binary;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The preview image of a drawing: a bitmap.</summary>
public sealed class CadThumbnailImage
{
    private const int FileHeader = 14;
    private const int InfoHeader = 40;

    internal CadThumbnailImage(byte[] data)
    {
        Data = data;
    }

    /// <summary>Gets the bitmap without its file header.</summary>
    public byte[] Data { get; }

    /// <summary>Gets the width in pixels; 0 where the data has no header.</summary>
    public int Width => Field(4);

    /// <summary>Gets the height in pixels; 0 where the data has no header.</summary>
    public int Height => Math.Abs(Field(8));

    /// <summary>Gets the number of bits of a pixel; 0 where the data has no header.</summary>
    public int BitsPerPixel =>
        Data.Length < InfoHeader ? 0 : BinaryPrimitives.ReadUInt16LittleEndian(Data.AsSpan(14));

    /// <summary>Returns the image as a bitmap file.</summary>
    /// <returns>The file; empty where the data has no header.</returns>
    public byte[] GetBitmap()
    {
        if (Data.Length < InfoHeader)
        {
            return [];
        }

        int header = Field(0);
        int used = Field(32);
        int colors = BitsPerPixel > 8 ? 0 : used > 0 ? used : 1 << BitsPerPixel;
        byte[] file = new byte[FileHeader + Data.Length];
        file[0] = (byte)'B';
        file[1] = (byte)'M';
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(2), file.Length);
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(10), FileHeader + header + (4 * colors));
        Data.CopyTo(file, FileHeader);
        return file;
    }

    private int Field(int at) =>
        Data.Length < InfoHeader ? 0 : BinaryPrimitives.ReadInt32LittleEndian(Data.AsSpan(at));
}
