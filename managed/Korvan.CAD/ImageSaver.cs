using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Writing of output that is complete in memory.</summary>
internal static class ImageSaver
{
    /// <summary>Overwrites the rest of a stream; the new content is complete before the first byte is
    /// written.</summary>
    internal static void Replace(Stream stream, long start, Action<Stream> write)
    {
        if (!stream.CanSeek || !stream.CanWrite)
        {
            throw new ImageSaveException(
                "The stream that the image was read from is closed, or cannot be written or cannot seek; "
                + "use save(file_path) or save(stream).");
        }

        using MemoryStream content = new();
        write(content);
        WriteTo(stream, target =>
        {
            target.Position = start;
            content.WriteTo(target);
            target.SetLength(start + content.Length);
            target.Flush();
        });
    }

    /// <summary>Writes to a stream that the program passed.</summary>
    internal static void WriteTo(Stream stream, Action<Stream> write)
    {
        if (!stream.CanWrite)
        {
            throw new ImageSaveException("The stream cannot be written: it is closed or was not opened for writing.");
        }

        try
        {
            write(stream);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageSaveException($"The stream could not be written: {e.Message}");
        }
    }

    /// <summary>Writes complete output to both destinations; the second is opened before the first byte is
    /// written.</summary>
    internal static void WriteTwice(MemoryStream output, Stream first, Source second)
    {
        try
        {
            using StreamContainer place = second.GetStreamContainer();
            if (!place.CanWrite)
            {
                throw new ImageSaveException(
                    $"The {second.GetType().Name} of the options cannot be written; use a FileCreateSource, "
                        + "or a StreamSource of a writable stream.");
            }

            output.WriteTo(first);
            output.WriteTo(place.Stream);
            place.Flush();
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageSaveException($"The output could not be written to the source of the options: {e.Message}");
        }
    }
}
