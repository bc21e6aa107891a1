using System;

namespace Korvan.CAD.CadExceptions.Compressors;

/// <summary>Run-length encoded data is damaged.</summary>
public class RleCompressorException : CompressorException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public RleCompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public RleCompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
