using System;
using System.Buffers;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Export;

/// <summary>Writes commands as a clear text metafile (ISO/IEC 8632-4), in lines of at most 80 characters where single
/// strings allow it. Real numbers have as many digits as they need to be read back exactly.</summary>
public sealed class DefaultClearTextWriter : IClearTextWriter, IParameterCodec
{
    private const int MaxLineLength = 80;

    private readonly Stream _stream;
    private readonly string _name;
    private readonly bool _breaksLines;
    private readonly ArrayBufferWriter<byte> _text = new();
    private int _column;
    private long _count;
    private bool _isInner;

    /// <summary>Creates a writer to a stream.</summary>
    /// <param name="stream">The stream; it stays open.</param>
    public DefaultClearTextWriter(Stream stream)
        : this(stream, (stream as FileStream)?.Name ?? "stream")
    {
    }

    internal DefaultClearTextWriter(Stream stream, string name)
        : this(stream, name, new CodingState(), true)
    {
        Verify.NotNull(stream);
    }

    private DefaultClearTextWriter(Stream stream, string name, CodingState state, bool breaksLines)
    {
        _stream = stream;
        _name = name;
        _breaksLines = breaksLines;
        State = state;
        Exchange = new ClearTextWriting(this, state);
    }

    internal CodingState State { get; }

    internal ParameterExchange Exchange { get; }

    /// <inheritdoc/>
    ParameterExchange IParameterCodec.Exchange => Exchange;

    /// <summary>Writes one element in lines of its own. No-operation elements have no form in clear text and are left
    /// out.</summary>
    /// <param name="command">Its command.</param>
    /// <exception cref="ImageSaveException">A parameter cannot be written; no part of the element was.</exception>
    public void WriteCommand(Command command)
    {
        Verify.NotNull(command);
        _text.ResetWrittenCount();
        _column = 0;
        try
        {
            Write(command);
        }
        catch (CgmDataException e)
        {
            (State.ReplacesDefaults, _isInner) = (false, false);
            string place = MessageLog.Place("command", _count, command.ElementClass, command.ElementId);
            throw new ImageSaveException($"'{_name}', {place}: {e.Message}.");
        }

        _stream.Write(_text.WrittenSpan);
        _count++;
    }

    /// <inheritdoc/>
    public void BeginElement(string keyword)
    {
        Verify.NotEmpty(keyword);
        Put(Encoding.ASCII.GetBytes(keyword));
    }

    /// <inheritdoc/>
    public void EndElement()
    {
        _text.Write(";\n"u8);
        _column = 0;
    }

    /// <inheritdoc/>
    public void WriteInteger(int value) => PutFormatted(value);

    /// <inheritdoc/>
    public void WriteWord(string value)
    {
        Verify.NotEmpty(value);
        Put(Encoding.ASCII.GetBytes(value));
    }

    /// <inheritdoc/>
    public void WriteReal(double value) => Put(Encoding.ASCII.GetBytes(Real(value)));

    /// <inheritdoc/>
    public void WriteVdc(double value) => Put(Encoding.ASCII.GetBytes(Coordinate(value)));

    /// <inheritdoc/>
    public void WritePoint(CgmPoint value)
    {
        Verify.NotNull(value);
        Put(Encoding.ASCII.GetBytes($"({Coordinate(value.X)},{Coordinate(value.Y)})"));
    }

    /// <inheritdoc/>
    public void WriteDirectColor(CgmColor value)
    {
        Span<long> components = stackalloc long[State.ColorComponents];
        new ColorCoding(State).FromColor(value, components);
        foreach (long component in components)
        {
            PutFormatted(component);
        }
    }

    /// <inheritdoc/>
    public void WriteString(string value)
    {
        Verify.NotNull(value);
        PutText(TextCoding.Encode(value, State), (byte)'\'');
    }

    /// <inheritdoc/>
    public void WriteData(byte[] value)
    {
        Verify.NotNull(value);
        PutText(value, (byte)'\'');
    }

    /// <inheritdoc/>
    public void WriteStructuredData(StructuredDataRecord value)
    {
        Verify.NotNull(value);
        var inner = new DefaultClearTextWriter(_stream, _name, State, false);
        StructuredDataCoding.Write(inner.Exchange, value);
        PutText(inner._text.WrittenSpan, (byte)'"');
    }

    /// <summary>Writes elements between the beginning and the end of another.</summary>
    internal void WriteInner(List<Command> commands)
    {
        if (_isInner)
        {
            throw new CgmDataException("it is nested in an element of its kind");
        }

        _isInner = true;
        commands.ForEach(command => Write(ParameterExchange.Needed(command)));
        _isInner = false;
    }

    private static string Real(double value)
    {
        string text = NumberRange.Finite(value).ToString("R", CultureInfo.InvariantCulture);
        return text.AsSpan().IndexOfAny('.', 'E') < 0 ? text + ".0" : text;
    }

    private string Coordinate(double value)
    {
        return State.HasRealCoordinates ? Real(value) : NumberRange.Whole(value).ToString(CultureInfo.InvariantCulture);
    }

    private void Write(Command command)
    {
        if (command is UnknownCommand unknown)
        {
            WriteUnknown(unknown);
        }
        else if (command.Keyword.Length > 0)
        {
            command.WriteAsClearText(this);
            command.Apply(State);
        }
    }

    private void WriteUnknown(UnknownCommand command)
    {
        if (command.Source.Length == 0)
        {
            throw new CgmDataException(
                "it is not defined by the standard and was read from a binary file, so it has no clear text form");
        }

        _text.Write(Encoding.Latin1.GetBytes(command.Source));
        EndElement();
    }

    private void PutFormatted(long value)
    {
        Span<byte> digits = stackalloc byte[20];
        value.TryFormat(digits, out int count, default, CultureInfo.InvariantCulture);
        Put(digits[..count]);
    }

    private void PutText(ReadOnlySpan<byte> text, byte quote)
    {
        byte[] quoted = new byte[text.Length + text.Count(quote) + 2];
        quoted[0] = quoted[^1] = quote;
        int at = 1;
        foreach (byte character in text)
        {
            quoted[at++] = character;
            if (character == quote)
            {
                quoted[at++] = quote;
            }
        }

        Put(quoted);
    }

    // The terminator has to fit after the last parameter, too.
    private void Put(ReadOnlySpan<byte> item)
    {
        if (_column > 0)
        {
            bool isFull = _breaksLines && _column + item.Length + 2 > MaxLineLength;
            _text.Write(isFull ? "\n "u8 : " "u8);
            _column = isFull ? 1 : _column + 1;
        }

        _text.Write(item);
        _column += item.Length;
    }
}
