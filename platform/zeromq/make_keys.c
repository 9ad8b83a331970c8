/* Prints a new key pair, as lines for the files that docs/over-zeromq.md describes. */
#include <stdio.h>
#include <zmq.h>

int main(void)
{
    char public_key[41], secret_key[41];
    if (zmq_curve_keypair(public_key, secret_key) != 0) {
        fprintf(stderr, "this ZeroMQ knows no keys: %s\n", zmq_strerror(zmq_errno()));
        return 1;
    }
    printf("# public key: %s\nsecret %s\n", public_key, secret_key);
    return 0;
}
