using System.IO;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A stream, and whether disposing the container closes it.</summary>
public class StreamContainer : DisposableObject
{
    /// <summary>Creates a container that leaves the stream open.</summary>
    /// <param name="stream">The stream to hold.</param>
    public StreamContainer(Stream stream)
        : this(stream, false)
    {
    }

    /// <summary>Creates a container.</summary>
    /// <param name="stream">The stream to hold.</param>
    /// <param name="disposeStream">Whether disposing the container closes the stream.</param>
    public StreamContainer(Stream stream, bool disposeStream)
    {
        Verify.NotNull(stream);
        Stream = stream;
        IsStreamDisposedOnClose = disposeStream;
    }

    /// <summary>Gets the stream.</summary>
    public Stream Stream { get; }

    /// <summary>Gets whether disposing the container closes the stream.</summary>
    public bool IsStreamDisposedOnClose { get; }

    /// <summary>Gets whether the stream can be read.</summary>
    public bool CanRead => Stream.CanRead;

    /// <summary>Gets whether the stream can be written.</summary>
    public bool CanWrite => Stream.CanWrite;

    /// <summary>Gets whether the stream has a position that can be set.</summary>
    public bool CanSeek => Stream.CanSeek;

    /// <summary>Gets the length in bytes.</summary>
    public long Length => Stream.Length;

    /// <summary>Gets or sets the position of the next read or write, in bytes from the start.</summary>
    public long Position
    {
        get => Stream.Position;
        set => Stream.Position = value;
    }

    /// <summary>Returns the stream of a container.</summary>
    public static explicit operator Stream(StreamContainer container)
    {
        Verify.NotNull(container);
        return container.Stream;
    }

    /// <summary>Sets the position of the next read or write.</summary>
    /// <param name="offset">The offset in bytes.</param>
    /// <param name="origin">The origin of the offset.</param>
    /// <returns>The new position, in bytes from the start.</returns>
    public long Seek(long offset, SeekOrigin origin) => Stream.Seek(offset, (System.IO.SeekOrigin)origin);

    /// <summary>Writes buffered bytes.</summary>
    public void Flush() => Stream.Flush();

    /// <summary>Returns the whole content from the start; the position of a seekable stream is kept.</summary>
    /// <returns>The content.</returns>
    public byte[] ToBytes()
    {
        VerifyNotDisposed();
        long position = CanSeek ? Stream.Position : 0;
        if (CanSeek)
        {
            Stream.Position = 0;
        }

        using MemoryStream copy = new();
        Stream.CopyTo(copy);
        if (CanSeek)
        {
            Stream.Position = position;
        }

        return copy.ToArray();
    }

    /// <inheritdoc/>
    internal override void ReleaseManagedResources()
    {
        if (IsStreamDisposedOnClose)
        {
            Stream.Dispose();
        }
    }
}
