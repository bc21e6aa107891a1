using System;
using System.Text;

namespace Korvan.CAD.Exif;

/// <summary>What the maker of a camera adds in a form of his own.</summary>
public class MakerNote
{
    private const int MaxNameBytes = 16;

    internal MakerNote(byte[] data)
    {
        Data = data;
        int end = data.AsSpan(0, Math.Min(data.Length, MaxNameBytes)).IndexOfAnyExceptInRange((byte)' ', (byte)'~');
        Name = end > 0 ? Encoding.ASCII.GetString(data, 0, end).TrimEnd() : "";
    }

    /// <summary>Gets the name that the note begins with, like <c>Nikon</c>; empty for none.</summary>
    public string Name { get; }

    /// <summary>Gets the note, its name included.</summary>
    public byte[] Data { get; }
}
