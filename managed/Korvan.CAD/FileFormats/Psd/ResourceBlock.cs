using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Codecs;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>A block of a PSD that holds what is no pixel: guides, previews, metadata.</summary>
public abstract class ResourceBlock
{
    private string _name = "";

    internal ResourceBlock(int id) => ID = id;

    /// <summary>Whether a block is as it stands in a file.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ResourceBlockState
    {
        /// <summary>It was made in memory.</summary>
        New = 0,

        /// <summary>It was read and not changed.</summary>
        Unchanged = 1,

        /// <summary>It was read and changed.</summary>
        Changed = 2,
    }

    /// <summary>Gets the number that tells what the block holds.</summary>
    public int ID { get; }

    /// <summary>Gets or sets the name, at most 255 bytes; usually empty.</summary>
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

    /// <summary>Gets whether the block is as it stands in a file.</summary>
    public ResourceBlockState State { get; private set; }

    /// <summary>Gets how many bytes the content has.</summary>
    public int DataSize => ToBytes().Length;

    /// <summary>Reads the blocks of a PSD.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <returns>The blocks of a PSD.</returns>
    /// <exception cref="PsdImageException">The file is no PSD.</exception>
    /// <exception cref="PsdImageResourceException">A block is damaged.</exception>
    public static ResourceBlock[] ReadAll(string filePath) => PsdResources.Of(File.ReadAllBytes(filePath), filePath);

    /// <summary>Reads the blocks of a PSD.</summary>
    /// <param name="stream">The stream, read from its position on.</param>
    /// <returns>The blocks of a PSD.</returns>
    /// <exception cref="PsdImageException">The stream is no PSD.</exception>
    /// <exception cref="PsdImageResourceException">A block is damaged.</exception>
    public static ResourceBlock[] ReadAll(Stream stream)
    {
        Verify.NotNull(stream);
        using var copy = new MemoryStream();
        stream.CopyTo(copy);
        return PsdResources.Of(copy.ToArray(), "stream");
    }

    /// <summary>Gives the content as it stands in the file.</summary>
    /// <returns>The content as it stands in the file.</returns>
    public abstract byte[] ToBytes();

    internal void MarkRead(string name) => (_name, State) = (name, ResourceBlockState.Unchanged);

    private protected void Change() => State = State == ResourceBlockState.New ? State : ResourceBlockState.Changed;
}
