using System.IO;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>An open file; disposing the container closes it.</summary>
public class FileStreamContainer : StreamContainer
{
    internal FileStreamContainer(string filePath, FileMode mode, FileAccess access)
        : base(new FileStream(filePath, mode, access, FileShare.Read), true)
    {
        FilePath = filePath;
    }

    /// <summary>Returns the file stream of a container.</summary>
    public static explicit operator Stream(FileStreamContainer container)
    {
        Verify.NotNull(container);
        return container.Stream;
    }

    /// <summary>Gets the path that the file was opened with.</summary>
    public string FilePath { get; }
}
