using Korvan.CAD.Binding;

namespace Korvan.CAD.Sources;

/// <summary>A file as a source.</summary>
public abstract class FileSource : Source
{
    internal FileSource(string filePath)
    {
        Verify.NotEmpty(filePath);
        FilePath = filePath;
    }

    /// <summary>Gets the path of the file.</summary>
    public string FilePath { get; }
}
