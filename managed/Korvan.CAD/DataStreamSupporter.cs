using System.IO;

namespace Korvan.CAD;

/// <summary>An object whose data comes from a stream and can be written to one.</summary>
public abstract class DataStreamSupporter : DisposableObject
{
    /// <summary>Gets the stream that the data was read from, or nothing when the object was made in memory
    /// or has read all of its data.</summary>
    public StreamContainer? DataStreamContainer { get; internal set; }

    /// <summary>Gets whether all data has been read, so that the stream it came from is no longer needed.</summary>
    public abstract bool IsCached { get; }

    /// <summary>Reads all data that has not been read yet.</summary>
    public abstract void CacheData();

    /// <summary>Writes the data to a stream, in the format it was read from.</summary>
    /// <param name="stream">The stream to write to, from its position on; it stays open.</param>
    public virtual void Save(Stream stream)
    {
        VerifyNotDisposed();
        System.ArgumentNullException.ThrowIfNull(stream);
        SaveData(stream);
    }

    /// <summary>Writes the data to a file, in the format it was read from.</summary>
    /// <param name="filePath">The path of the file. A file that exists is replaced only when writing succeeds.</param>
    public virtual void Save(string filePath) => Save(filePath, true);

    /// <summary>Writes the data to a file.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <param name="overWrite">Whether a file that exists may be replaced. If not, that is an error.</param>
    public virtual void Save(string filePath, bool overWrite)
    {
        VerifyNotDisposed();
        AtomicFile.Write(filePath, overWrite, SaveData);
    }

    /// <summary>Writes the data in its own format.</summary>
    internal abstract void SaveData(Stream stream);

    /// <inheritdoc/>
    internal override void ReleaseManagedResources()
    {
        DataStreamContainer?.Dispose();
        DataStreamContainer = null;
    }
}
