using System;
using System.Text;

namespace Korvan.CAD.Exif;

/// <summary>Data of a camera's manufacturer in its own format.</summary>
public class MakerNote
{
    private const int MaxNameBytes = 16;

    internal MakerNote(byte[] data)
    {
        Data = data;
        int end = data.AsSpan(0, Math.Min(data.Length, MaxNameBytes)).IndexOfAnyExceptInRange((byte)' ', (byte)'~');
        Name = end > 0 ? Encoding.ASCII.GetString(data, 0, end).TrimEnd() : "";
    }

    /// <summary>Gets the name at the start of the note, such as <c>Nikon</c>; empty for none.</summary>
    public string Name { get; }

    /// <summary>Gets the bytes of the note, including its name.</summary>
    public byte[] Data { get; }
}
