using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>An object whose data comes from a stream and can be written to one.</summary>
public abstract class DataStreamSupporter : DisposableObject
{
    /// <summary>Gets the stream that the data was read from, or <see langword="null"/> if the object was created in
    /// memory or has read all of its data.</summary>
    public StreamContainer? DataStreamContainer { get; internal set; }

    /// <summary>Gets whether all data has been read, so that the stream it came from is no longer needed.</summary>
    public abstract bool IsCached { get; }

    /// <summary>Reads all data that has not been read yet.</summary>
    public abstract void CacheData();

    /// <summary>Overwrites the file or stream that the data was read from, in the same format.</summary>
    /// <exception cref="ImageSaveException">The object was created in memory, so that it has no such file or stream; or
    /// writing failed.</exception>
    public void Save() => SaveOver();

    /// <summary>Writes the data to a stream, in the format it was read from.</summary>
    /// <param name="stream">The stream to write to, from its position on; it stays open.</param>
    public virtual void Save(Stream stream)
    {
        VerifyNotDisposed();
        Verify.NotNull(stream);
        ImageSaver.WriteTo(stream, SaveData);
    }

    /// <summary>Writes the data to a file, in the format it was read from.</summary>
    /// <param name="filePath">The path of the file. A file that exists is replaced only when writing succeeds; a device
    /// or a FIFO gets the output. An extension of another format raises an error.</param>
    /// <exception cref="ImageSaveException">Writing failed, or the name has the extension of another
    /// format.</exception>
    public virtual void Save(string filePath) => Save(filePath, true);

    /// <summary>Writes the data to a file.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <param name="overWrite">Whether an existing file may be replaced; otherwise, it raises an error.</param>
    public virtual void Save(string filePath, bool overWrite)
    {
        VerifyNotDisposed();
        Verify.NotEmpty(filePath);
        Action<Stream> write = OwnWriter(filePath);
        AtomicFile.Write(filePath, overWrite, write);
    }

    /// <summary>Writes the data in its own format.</summary>
    internal abstract void SaveData(Stream stream);

    /// <summary>Overwrites the file or stream that the data was read from.</summary>
    internal abstract void SaveOver();

    /// <summary>Returns a function that writes the data to a file of this name.</summary>
    /// <exception cref="ImageSaveException">The name has the extension of another format.</exception>
    internal virtual Action<Stream> OwnWriter(string filePath) => SaveData;

    /// <inheritdoc/>
    internal override void ReleaseManagedResources()
    {
        DataStreamContainer?.Dispose();
        DataStreamContainer = null;
    }
}
