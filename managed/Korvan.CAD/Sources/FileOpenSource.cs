using System.IO;

namespace Korvan.CAD.Sources;

/// <summary>An existing file, opened for reading.</summary>
public class FileOpenSource : FileSource
{
    /// <summary>Creates the source; the file is opened when the source is opened.</summary>
    /// <param name="filePath">The path of the file.</param>
    public FileOpenSource(string filePath)
        : base(filePath)
    {
    }

    /// <inheritdoc/>
    public override StreamContainer GetStreamContainer()
    {
        return new FileStreamContainer(FilePath, FileMode.Open, FileAccess.Read);
    }
}
