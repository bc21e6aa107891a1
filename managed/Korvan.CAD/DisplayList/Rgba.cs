namespace Korvan.CAD.DisplayList;

/// <summary>A colour as four bytes, alpha not multiplied in.</summary>
internal readonly record struct Rgba(byte R, byte G, byte B, byte A = 255)
{
    internal static readonly Rgba Black = new(0, 0, 0);
    internal static readonly Rgba White = new(255, 255, 255);

    /// <summary>The lightness, 0 to 255 (ITU-R BT.601 luma).</summary>
    internal byte Luma => (byte)(((299 * R) + (587 * G) + (114 * B)) / 1000);

    /// <summary>Whether black reads better on this colour than white (ITU-R BT.601 luma).</summary>
    internal bool IsLight => ((299 * R) + (587 * G) + (114 * B)) >= 128000;

    internal static Rgba FromRgb(int rgb) => new((byte)(rgb >> 16), (byte)(rgb >> 8), (byte)rgb);

    internal Rgba WithAlpha(byte alpha) => new(R, G, B, alpha);
}
