using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Writing back to an open stream.</summary>
internal static class ImageSaver
{
    // The new content is complete before the first old byte is touched.
    internal static void Replace(Stream stream, Action<Stream> write)
    {
        if (!stream.CanSeek || !stream.CanWrite)
        {
            throw new ImageSaveException("The stream that the drawing was read from cannot be written; "
                + "use save(file_path) or save(stream).");
        }

        using MemoryStream content = new();
        write(content);
        stream.Position = 0;
        content.WriteTo(stream);
        stream.SetLength(content.Length);
        stream.Flush();
    }
}
