using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.FileFormats.Cgm.Export;
using Korvan.CAD.FileFormats.Cgm.Import;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>A computer graphics metafile as the list of its commands (ISO/IEC 8632:1999). Direct colours are sRGB of 8
/// bits a component, whatever the model and precision of the file.</summary>
public sealed class CgmFile
{
    private IReadOnlyList<Message> _messages = [];
    private bool _isDamaged;
    private bool _hasFractions;

    /// <summary>Creates a metafile without commands.</summary>
    public CgmFile()
    {
    }

    /// <summary>Gets the commands in their order. A whole metafile begins with BEGMF and ends with ENDMF.</summary>
    public List<Command> Commands { get; } = [];

    /// <summary>Gets the messages of reading; at most the first thousand and a note that there are more.</summary>
    public IReadOnlyList<Message> Messages => _messages;

    /// <summary>Gets the encoding that the file was read from; binary for one that was not read.</summary>
    public CgmFileFormat Encoding { get; private set; }

    /// <summary>Gets the identifier of the metafile; empty where it has none.</summary>
    public string Name => Commands.OfType<BeginMetafile>().FirstOrDefault()?.Identifier ?? "";

    /// <summary>Gets the identifiers of the pictures in their order.</summary>
    public string[] PictureNames => [.. Commands.OfType<BeginPicture>().Select(one => one.Identifier)];

    /// <summary>Reads a file of either encoding, which may be compressed by gzip.</summary>
    /// <param name="filePath">The file.</param>
    /// <returns>The metafile.</returns>
    /// <exception cref="ImageLoadException">The file is missing, damaged, or no metafile.</exception>
    public static CgmFile Load(string filePath) => Load(filePath, false);

    /// <summary>Reads a file of either encoding, which may be compressed by gzip.</summary>
    /// <param name="filePath">The file.</param>
    /// <param name="ignoreErrors">Whether damaged elements are left out and reported in <see cref="Messages"/>.</param>
    /// <returns>The metafile.</returns>
    /// <exception cref="ImageLoadException">The file is missing, no metafile, or damaged and damage is not
    /// ignored.</exception>
    public static CgmFile Load(string filePath, bool ignoreErrors) =>
        Load(SourceFile.Read(filePath, SourceFile.ReadAll), filePath, new LoadOptions { IgnoreErrors = ignoreErrors });

    /// <summary>Reads a stream of either encoding, which may be compressed by gzip, to its end.</summary>
    /// <param name="stream">The stream; it stays open.</param>
    /// <returns>The metafile.</returns>
    /// <exception cref="ImageLoadException">The stream is damaged or no metafile.</exception>
    public static CgmFile Load(Stream stream) => Load(stream, false);

    /// <summary>Reads a stream of either encoding, which may be compressed by gzip, to its end.</summary>
    /// <param name="stream">The stream; it stays open.</param>
    /// <param name="ignoreErrors">Whether damaged elements are left out and reported in <see cref="Messages"/>.</param>
    /// <returns>The metafile.</returns>
    /// <exception cref="ImageLoadException">The stream is no metafile, or damaged and damage is not
    /// ignored.</exception>
    public static CgmFile Load(Stream stream, bool ignoreErrors)
    {
        Verify.NotNull(stream);
        return Load(SourceFile.ReadAll(SourceFile.Open(stream, "stream")), "stream",
            new LoadOptions { IgnoreErrors = ignoreErrors });
    }

    /// <summary>Writes the commands to a file atomically.</summary>
    /// <param name="filePath">The file; one that exists is replaced.</param>
    /// <param name="format">The encoding.</param>
    /// <exception cref="ImageSaveException">A command cannot be written, or the file cannot.</exception>
    public void Save(string filePath, CgmFileFormat format) =>
        AtomicFile.Write(filePath, true, stream => Write(stream, format, filePath));

    /// <summary>Writes the commands to a stream.</summary>
    /// <param name="stream">The stream; it stays open.</param>
    /// <param name="format">The encoding.</param>
    /// <exception cref="ImageSaveException">A command cannot be written; then the stream is unchanged.</exception>
    public void Save(Stream stream, CgmFileFormat format)
    {
        Verify.NotNull(stream);
        using var content = new MemoryStream();
        Write(content, format, "stream");
        content.WriteTo(stream);
    }

    /// <summary>Reads a metafile; damage is added to the errors of the options.</summary>
    internal static CgmFile Load(byte[] data, string name, LoadOptions options)
    {
        byte[] content = CgmSource.Unpack(data, name);
        var file = new CgmFile { Encoding = CgmSource.FindEncoding(content, name) };
        if (file.Encoding == CgmFileFormat.Binary)
        {
            file.ReadBinary(content, name, options.IgnoreErrors);
        }
        else
        {
            file.ReadClearText(content, name, options.IgnoreErrors);
        }

        IEnumerable<Message> errors = file._messages.Where(one => one.Severity == Severity.Error);
        options.Errors.AddRange(errors.Select(one => $"'{name}', {one.Text}."));
        file._isDamaged = file._messages.Any(one => one.Severity != Severity.Unsupported);
        return file;
    }

    /// <summary>Writes the commands. Of a file that was read in spite of its damage, what is whole is
    /// written.</summary>
    /// <param name="stream">The stream.</param>
    /// <param name="format">The encoding.</param>
    /// <param name="name">The name of the file in messages.</param>
    /// <param name="report">Receives what is left out.</param>
    internal void Write(
        Stream stream, CgmFileFormat format, string name, Action<Command, string> report)
    {
        if (!_isDamaged)
        {
            Write(stream, format, name);
            return;
        }

        List<Command> whole = [.. Commands.Where(static one => one is not (BeginMetafile or EndMetafile))];
        if (_hasFractions && whole.Any(static one => one is VdcExtent))
        {
            whole.RemoveAll(static one => one is VdcType);
            whole.Insert(0, new VdcType { Value = VdcType.Type.Real });
        }

        // The version comes first: metafiles are known by the descriptor after their begin.
        MetafileVersion version = whole.OfType<MetafileVersion>().FirstOrDefault() ?? new MetafileVersion();
        whole.Remove(version);
        whole.Insert(0, version);
        whole.Insert(0, Commands.OfType<BeginMetafile>().FirstOrDefault() ?? new BeginMetafile());
        whole.Add(new EndMetafile());
        Action<Command> write = WriterOf(stream, format, name);
        foreach (Command command in whole)
        {
            try
            {
                write(command);
            }
            catch (ImageSaveException e)
            {
                report(command, e.Message);
            }
        }
    }

    private void Write(Stream stream, CgmFileFormat format, string name)
    {
        if (_isDamaged)
        {
            List<Message> messages = [.. _messages];
            Write(stream, format, name, (command, text) => messages.Add(
                new Message(Severity.Error, command.ElementClass, command.ElementId, Commands.IndexOf(command), text)));
            _messages = messages;
            return;
        }

        if (Commands.FirstOrDefault() is not BeginMetafile || Commands[^1] is not EndMetafile)
        {
            throw new ImageSaveException(
                $"'{name}': a metafile starts with BeginMetafile and ends with EndMetafile, but the commands do not.");
        }

        Commands.ForEach(WriterOf(stream, format, name));
    }

    private static Action<Command> WriterOf(Stream stream, CgmFileFormat format, string name) => format switch
    {
        CgmFileFormat.Binary => new DefaultBinaryWriter(stream, name).WriteCommand,
        CgmFileFormat.ClearText => new DefaultClearTextWriter(stream, name).WriteCommand,
        _ => throw Verify.OutOfRange(nameof(format), format,
            "Binary and ClearText are the encodings that can be written."),
    };

    private void ReadBinary(byte[] data, string name, bool ignoreErrors)
    {
        using var reader = new DefaultBinaryReader(new MemoryStream(data, false), DefaultCommandFactory.Instance, name);
        reader.IgnoreErrors = ignoreErrors;
        while (reader.ReadCommand() is Command command)
        {
            Commands.Add(command);
        }

        _messages = reader.Messages;
    }

    private void ReadClearText(byte[] data, string name, bool ignoreErrors)
    {
        var reader = new ClearTextReader(data, name, ignoreErrors);
        while (reader.ReadCommand() is Command command)
        {
            Commands.Add(command);
        }

        _messages = reader.Messages;
        _hasFractions = reader.HasFractions;
    }
}
