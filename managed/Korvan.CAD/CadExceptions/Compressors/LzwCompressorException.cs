using System;

namespace Korvan.CAD.CadExceptions.Compressors;

/// <summary>LZW-compressed data is damaged.</summary>
public class LzwCompressorException : CompressorException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public LzwCompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public LzwCompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
