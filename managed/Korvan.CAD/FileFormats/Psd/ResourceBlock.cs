using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Codecs;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>An image resource block of a PSD: guides, thumbnails, metadata.</summary>
public abstract class ResourceBlock
{
    private string _name = "";

    internal ResourceBlock(int id) => ID = id;

    /// <summary>State of a block relative to the file.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ResourceBlockState
    {
        /// <summary>Created in memory.</summary>
        New = 0,

        /// <summary>Read and not changed.</summary>
        Unchanged = 1,

        /// <summary>Read and changed.</summary>
        Changed = 2,
    }

    /// <summary>Gets the resource number, which determines the content.</summary>
    public int ID { get; }

    /// <summary>Gets or sets the name, at most 255 bytes; typically empty.</summary>
    /// <exception cref="ArgumentException">The name is too long.</exception>
    public string Name
    {
        get => _name;
        set
        {
            Verify.NotNull(value);
            if (System.Text.Encoding.UTF8.GetByteCount(value) > 255)
            {
                throw new ArgumentException("The name of a resource has at most 255 bytes.");
            }

            _name = value;
            Change();
        }
    }

    /// <summary>Gets the state relative to the file.</summary>
    public ResourceBlockState State { get; private set; }

    /// <summary>Gets the size of the content in bytes.</summary>
    public int DataSize => ToBytes().Length;

    /// <summary>Reads the blocks of a PSD.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <returns>The blocks.</returns>
    /// <exception cref="PsdImageException">The file is not a PSD.</exception>
    /// <exception cref="PsdImageResourceException">A block is damaged.</exception>
    public static ResourceBlock[] ReadAll(string filePath) => PsdResources.Of(File.ReadAllBytes(filePath), filePath);

    /// <summary>Reads the blocks of a PSD.</summary>
    /// <param name="stream">The stream, read from its position on.</param>
    /// <returns>The blocks.</returns>
    /// <exception cref="PsdImageException">The stream is not a PSD.</exception>
    /// <exception cref="PsdImageResourceException">A block is damaged.</exception>
    public static ResourceBlock[] ReadAll(Stream stream)
    {
        Verify.NotNull(stream);
        using var copy = new MemoryStream();
        stream.CopyTo(copy);
        return PsdResources.Of(copy.ToArray(), "stream");
    }

    /// <summary>Returns the content as stored in a file.</summary>
    /// <returns>The bytes of the content.</returns>
    public abstract byte[] ToBytes();

    internal void MarkRead(string name) => (_name, State) = (name, ResourceBlockState.Unchanged);

    private protected void Change() => State = State == ResourceBlockState.New ? State : ResourceBlockState.Changed;
}
