using System.IO;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Sources;

/// <summary>A stream as a source.</summary>
public class StreamSource : Source
{
    /// <summary>Creates a source over a new memory stream.</summary>
    public StreamSource()
        : this(new MemoryStream(), true)
    {
    }

    /// <summary>Creates a source that leaves the stream open.</summary>
    /// <param name="stream">The stream.</param>
    public StreamSource(Stream stream)
        : this(stream, false)
    {
    }

    /// <summary>Creates a source.</summary>
    /// <param name="stream">The stream.</param>
    /// <param name="disposeStream">Whether the stream is closed after use.</param>
    public StreamSource(Stream stream, bool disposeStream)
    {
        Verify.NotNull(stream);
        Stream = stream;
        DisposeStream = disposeStream;
    }

    /// <summary>Gets the stream.</summary>
    public Stream Stream { get; }

    /// <summary>Gets whether the stream is closed after use.</summary>
    public bool DisposeStream { get; }

    /// <inheritdoc/>
    public override StreamContainer GetStreamContainer() => new(Stream, DisposeStream);
}
