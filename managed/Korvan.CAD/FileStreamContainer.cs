using System.IO;

namespace Korvan.CAD;

/// <summary>An open file; disposing the container closes it.</summary>
public class FileStreamContainer : StreamContainer
{
    internal FileStreamContainer(string filePath, FileMode mode, FileAccess access)
        : base(new FileStream(filePath, mode, access, FileShare.Read), true)
    {
        FilePath = filePath;
    }

    /// <summary>Gets the path that the file was opened with.</summary>
    public string FilePath { get; }
}
