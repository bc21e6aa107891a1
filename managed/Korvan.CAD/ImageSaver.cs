using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Writing of output that is whole in memory.</summary>
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

    /// <summary>Writes finished output to both places; the second is open before the first byte is written.</summary>
    internal static void WriteTwice(MemoryStream output, Stream first, Source second)
    {
        try
        {
            using StreamContainer place = second.GetStreamContainer();
            if (!place.CanWrite)
            {
                throw new ImageSaveException(
                    $"The {second.GetType().Name} of the options cannot be written; use a FileCreateSource, or a StreamSource of a stream that can.");
            }

            output.WriteTo(first);
            output.WriteTo(place.Stream);
            place.Flush();
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageSaveException($"The output could not be written to the source of the options: {e.Message}", e);
        }
    }
}
