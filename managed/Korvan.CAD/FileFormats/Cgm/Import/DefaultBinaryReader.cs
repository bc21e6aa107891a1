using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Reads the commands of a binary metafile one by one (ISO/IEC 8632-3).</summary>
public sealed partial class DefaultBinaryReader : IBinaryReader, IParameterCodec, IDisposable
{
    private const string Unit = "byte";

    private readonly BinaryElements _elements;
    private readonly CommandConstructorArguments?[] _arguments;
    private readonly MessageLog _log;
    private readonly string _name;
    private readonly bool _isInner;
    private bool _isAtEnd;
    private bool _isDisposed;

    /// <summary>Creates a reader of a stream.</summary>
    /// <param name="stream">The stream, at the start of the metafile. It stays open.</param>
    public DefaultBinaryReader(Stream stream)
        : this(stream, DefaultCommandFactory.Instance)
    {
    }

    /// <summary>Creates a reader of a stream with a command factory.</summary>
    /// <param name="stream">The stream, at the start of the metafile. It stays open.</param>
    /// <param name="commandFactory">The factory that creates the commands.</param>
    public DefaultBinaryReader(Stream stream, ICommandFactory commandFactory)
        : this(stream, commandFactory, (stream as FileStream)?.Name ?? "stream")
    {
    }

    internal DefaultBinaryReader(Stream stream, ICommandFactory commandFactory, string name)
    {
        Verify.NotNull(stream);
        Verify.NotNull(commandFactory);
        _elements = new BinaryElements(stream, 0);
        _arguments = new CommandConstructorArguments?[16 << 7];
        _log = new MessageLog();
        _name = name;
        CommandFactory = commandFactory;
        State = new CodingState();
        Exchange = new BinaryReading(this, State);
    }

    // Elements inside an element share the coding state around them.
    private DefaultBinaryReader(DefaultBinaryReader outer, byte[] data, long origin)
    {
        _elements = new BinaryElements(new MemoryStream(data, false), origin);
        _arguments = outer._arguments;
        _log = outer._log;
        _name = outer._name;
        _isInner = true;
        CommandFactory = outer.CommandFactory;
        IgnoreErrors = outer.IgnoreErrors;
        State = outer.State;
        Exchange = new BinaryReading(this, State);
    }

    /// <summary>Gets the command factory.</summary>
    public ICommandFactory CommandFactory { get; }

    /// <summary>Gets or sets whether damaged elements are left out and reported in <see cref="Messages"/>. By default
    /// damage is an error.</summary>
    public bool IgnoreErrors { get; set; }

    /// <summary>Gets the messages so far; at most the first thousand and a note that there are more.</summary>
    public IReadOnlyList<Message> Messages => _log.Messages;

    internal CodingState State { get; }

    internal ParameterExchange Exchange { get; }

    /// <inheritdoc/>
    ParameterExchange IParameterCodec.Exchange => Exchange;

    internal long BytePosition => _elements.Position;

    /// <summary>Reads the next element.</summary>
    /// <returns>Its command, or <c>null</c> after the end of the metafile.</returns>
    /// <exception cref="ImageLoadException">The element is damaged; the message states its offset.</exception>
    public Command? ReadCommand()
    {
        ObjectDisposedException.ThrowIf(_isDisposed, this);
        while (!_isAtEnd)
        {
            Budget.Check();
            if (TryRead() is Command command)
            {
                return command;
            }
        }

        return null;
    }

    /// <summary>Releases the memory of the reader. The stream stays open.</summary>
    public void Dispose()
    {
        if (!_isDisposed)
        {
            _elements.Dispose();
            (_data, _at, _end) = ([], 0, 0);
            _isDisposed = true;
        }
    }

    /// <summary>Reads the elements that the parameters of this one contain.</summary>
    internal List<Command> ReadInner()
    {
        if (_isInner)
        {
            throw new CgmDataException("it is nested in an element of its kind");
        }

        long origin = _elements.Start + _elements.Length switch { < 31 => 2, _ => 4 };
        using var inner = new DefaultBinaryReader(this, ReadRest(), origin);
        var commands = new List<Command>();
        while (inner.ReadCommand() is Command command)
        {
            commands.Add(command);
        }

        return commands;
    }

    private Command? TryRead()
    {
        try
        {
            if (!MoveNext())
            {
                return null;
            }

            (_data, _at, _end, _depth) = (_elements.Parameters, 0, _elements.Length, 0);

            Command command = Create();
            Fill(command);
            command.Apply(State);
            NoteRest(command);
            _isAtEnd = command is
            { ElementClass: ClassCode.DelimiterElement, ElementId: (int)DelimiterElement.EndMetafile };
            return command;
        }
        catch (CgmDataException e)
        {
            State.ReplacesDefaults &= _isInner;
            Report(e);
            return null;
        }
    }

    private bool MoveNext()
    {
        try
        {
            if (_elements.MoveNext())
            {
                return true;
            }
        }
        catch (CgmDataException)
        {
            _isAtEnd = true;
            throw;
        }

        _isAtEnd = true;
        if (!_isInner)
        {
            Note(Severity.Warning, "the file ends without ENDMF");
        }

        return false;
    }

    private Command Create()
    {
        ref CommandConstructorArguments? arguments = ref _arguments[(_elements.Class << 7) | _elements.Id];
        arguments ??= new CommandConstructorArguments((ClassCode)_elements.Class, _elements.Id);
        return CommandFactory.CreateCommand(arguments)
            ?? throw new CgmDataException("the command factory returned no command for it");
    }

    private void Fill(Command command)
    {
        if (command is UnknownCommand unknown)
        {
            unknown.Parameters = ReadRest();
            Note(Severity.Unsupported, "the standard does not define the element; it is kept as it is");
            return;
        }

        command.Exchange(Exchange);
    }

    private void NoteRest(Command command)
    {
        bool mayHaveMore = command is { ElementClass: ClassCode.DelimiterElement, ElementId: 0 };
        if (HasMore && !mayHaveMore)
        {
            Note(Severity.Warning, $"{_end - _at} of {_end} bytes are left over");
        }
    }

    private void Note(Severity severity, string text)
    {
        string place = MessageLog.Place(Unit, _elements.Start, (ClassCode)_elements.Class, _elements.Id);
        _log.Add(new Message(severity, (ClassCode)_elements.Class, _elements.Id, _elements.Start, $"{place}: {text}"));
    }

    private void Report(CgmDataException e)
    {
        if (!IgnoreErrors)
        {
            string place = MessageLog.Place(Unit, _elements.Start, (ClassCode)_elements.Class, _elements.Id);
            throw new ImageLoadException($"'{_name}', {place}: {e.Message}.");
        }

        Note(Severity.Error, e.Message);
    }
}
