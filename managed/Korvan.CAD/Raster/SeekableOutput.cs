using System;
using System.IO;

namespace Korvan.CAD.Raster;

/// <summary>Output for writers that seek back to what they wrote.</summary>
internal static class SeekableOutput
{
    /// <summary>Calls a writer with a stream that can be read and sought from its first byte.</summary>
    internal static void Write(Stream output, Action<Stream> write)
    {
        if (output.CanSeek && output.CanRead && output.Position == 0 && output.Length == 0)
        {
            write(output);
            return;
        }

        using var copy = new MemoryStream();
        write(copy);
        copy.WriteTo(output);
    }
}
