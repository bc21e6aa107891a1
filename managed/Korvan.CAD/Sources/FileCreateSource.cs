using System.IO;

namespace Korvan.CAD.Sources;

/// <summary>A file that is created; an existing one is overwritten.</summary>
public class FileCreateSource : FileSource
{
    /// <summary>Creates the source; the file is created when the source is opened.</summary>
    /// <param name="filePath">The path of the file.</param>
    public FileCreateSource(string filePath)
        : base(filePath)
    {
    }

    /// <inheritdoc/>
    public override StreamContainer GetStreamContainer()
    {
        return new FileStreamContainer(FilePath, FileMode.Create, FileAccess.ReadWrite);
    }
}
