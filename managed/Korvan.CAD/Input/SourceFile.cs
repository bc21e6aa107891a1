using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Input;

/// <summary>Opens files and streams for reading, with errors that name them.</summary>
internal static class SourceFile
{
    /// <summary>Opens a file for the duration of a function.</summary>
    /// <param name="filePath">The path.</param>
    /// <param name="use">Reads from the file.</param>
    /// <exception cref="ImageLoadException">The file is missing, a folder, or cannot be read.</exception>
    internal static T Read<T>(string filePath, Func<SourceWindow, T> use)
    {
        VerifyFile(filePath);
        try
        {
            using FileStream stream = UndecodableFileName.OpenToRead(filePath);
            return use(new SourceWindow(stream, filePath));
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageLoadException($"'{filePath}' could not be read: {e.Message}");
        }
    }

    /// <summary>Reads a stream from its position.</summary>
    /// <param name="stream">The stream.</param>
    /// <param name="name">Its name in messages.</param>
    internal static SourceWindow Open(Stream stream, string name)
    {
        Verify.NotNull(stream);
        return stream.CanRead ? new SourceWindow(stream, name)
            : throw new ImageLoadException($"'{name}' cannot be read: it is closed or was not opened for reading.");
    }

    /// <summary>Returns all bytes of a source, which must not be empty.</summary>
    internal static byte[] ReadAll(SourceWindow source)
    {
        VerifyContent(source);
        return source.All();
    }

    /// <summary>Throws if a source is empty.</summary>
    internal static void VerifyContent(SourceWindow source)
    {
        if (source.FirstBytes.IsEmpty)
        {
            throw new ImageLoadException(source.Start > 0
                ? $"'{source.Name}' has nothing after its position, {source.Start} bytes from the start; seek to where "
                    + "the drawing begins."
                : $"'{source.Name}' is empty; a drawing was expected.");
        }
    }

    private static void VerifyFile(string filePath)
    {
        Verify.NotNull(filePath);
        if (Directory.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' is a folder; name a file in it.");
        }

        if (!UndecodableFileName.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' does not exist.");
        }
    }
}
