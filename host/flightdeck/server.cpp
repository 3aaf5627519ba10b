#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <chrono>
#include <filesystem>
#include <list>
#include <memory>
#include <optional>
#include <thread>

#include "host/flightdeck/browser_session.h"
#include "host/flightdeck/deck.h"
#include "host/flightdeck/exchange.h"
#include "host/flightdeck/request_text.h"
#include "host/flightdeck/site.h"
#include "host/flightdeck/stored_files.h"

// The web server: one thread, asynchronous. It serves the site, and one WebSocket at /socket. Only the
// network is here, for the library that it speaks with takes its time to compile.

namespace host {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using asio::ip::tcp;

// Of the one kind of executor that there is, which spares the library's detours for any.
using Executor = asio::io_context::executor_type;
using Socket = asio::basic_stream_socket<tcp, Executor>;
using Timer = asio::basic_waitable_timer<std::chrono::steady_clock,
                                         asio::wait_traits<std::chrono::steady_clock>, Executor>;
using Request = http::request<http::string_body>;

constexpr std::size_t kMaxMessage = 64 * 1024;
constexpr std::size_t kMaxConnections = 200;  // of HTTP, before they become a browser's link
constexpr auto kRequestTime = std::chrono::seconds(5), kAnswerTime = std::chrono::seconds(30);
constexpr int kSendBuffer = 256 * 1024;  // bytes: what is on its way to a slow browser is soon old
constexpr auto kPeerSilence = std::chrono::seconds(20);

std::string_view View(beast::string_view text) {
    return {text.data(), text.size()};
}

}  // namespace

namespace {
class Connection;
}

struct FlightDeck::Network : Exchange {
    std::list<Connection*> connections;  // network thread only; the one that has been idle longest first
    asio::io_context io{1};
    asio::basic_socket_acceptor<tcp, Executor> acceptor{io};
    Timer accept_pause{io};
    std::thread thread;

    void Accept();
};

namespace {

// One WebSocket. At most one write is under way; what a slow browser misses is not kept for it, and nothing
// of one that has gone.
class Browser : public BrowserSession, public std::enable_shared_from_this<Browser> {
  public:
    Browser(Socket&& socket, FlightDeck::Network& network)
        : BrowserSession(network), socket_(std::move(socket)), timer_(network.io) {}

    void Run(const Request& request) {
        // A page that only looks sends nothing: pings tell whether it is still there.
        socket_.set_option(websocket::stream_base::timeout{std::chrono::seconds(10), kPeerSilence, true});
        websocket::permessage_deflate deflate;
        deflate.server_enable = true;
        socket_.set_option(deflate);
        socket_.read_message_max(kMaxMessage);
        socket_.async_accept(request, [self = shared_from_this()](beast::error_code error) {
            if (error) return;
            self->open_ = true;
            self->Greet();
            self->Read();
            self->Tick();
        });
    }

  private:
    void Read() {
        socket_.async_read(buffer_, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (error) return self->Leave();
            const std::string text = beast::buffers_to_string(self->buffer_.data());
            self->buffer_.consume(self->buffer_.size());
            if (const std::string reason = self->Take(text, self->socket_.got_text()); !reason.empty())
                return self->Close(reason);
            self->Read();
        });
    }

    void Tick() {
        timer_.expires_after(kPicturePeriod);
        timer_.async_wait([self = shared_from_this()](beast::error_code error) {
            if (error || !self->open_) return;
            self->Write();
            self->Tick();
        });
    }

    void Write() override {
        bool is_binary = false;
        if (!open_ || writing_ || !NextMessage(outgoing_, is_binary)) return;
        writing_ = true;
        socket_.binary(is_binary);
        socket_.async_write(asio::buffer(outgoing_),
                            [self = shared_from_this(), is_binary](beast::error_code error, std::size_t) {
                                self->writing_ = false;
                                if (error) return self->Leave();
                                if (!is_binary) self->Write();  // pictures wait for their period
                            });
    }

    void Close(const std::string& reason) {
        open_ = false;
        websocket::close_reason close(websocket::close_code::policy_error, reason.substr(0, 120));
        socket_.async_close(close, [self = shared_from_this()](beast::error_code) { self->Leave(); });
    }

    void Leave() {
        open_ = false;
        timer_.cancel();
        ForgetWatched();
    }

    websocket::stream<Socket> socket_;
    Timer timer_;
    beast::flat_buffer buffer_;
    bool open_ = false, writing_ = false;
    std::string outgoing_;
};

// One HTTP connection, until it is closed or becomes a WebSocket.
class Connection : public std::enable_shared_from_this<Connection> {
  public:
    Connection(Socket&& socket, FlightDeck::Network& network)
        : stream_(std::move(socket)), network_(network) {
        place_ = network_.connections.insert(network_.connections.end(), this);
    }
    ~Connection() { network_.connections.erase(place_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void Read() {
        parser_.emplace();
        parser_->body_limit(kMostStoredBytes);
        parser_->header_limit(8192);
        stream_.expires_after(kRequestTime);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             if (!error) self->Answer(self->parser_->release());
                         });
    }

    /// Makes room for another; what is under way ends with an error.
    void Drop() { stream_.close(); }

  private:
    void Answer(const Request& request) {
        network_.connections.splice(network_.connections.end(), network_.connections, place_);
        const std::string_view path = TargetPath(View(request.target()));
        if (!MayConnect(network_.settings,
                        {View(request.target()), View(request[http::field::host]),
                         View(request[http::field::origin]), View(request[http::field::cookie])}))
            return SendRefusal(request, 403);
        if (websocket::is_upgrade(request)) {
            if (path != "/socket") return SendRefusal(request, 404);
            if (!HasRoom(network_)) return SendRefusal(request, 503);
            stream_.expires_never();
            return std::make_shared<Browser>(stream_.release_socket(), network_)->Run(request);
        }
        // What writes must say which page it comes from, so that no other site's can.
        if (request.method() == http::verb::put && !request[http::field::origin].empty())
            return Send(request, StoreFile(network_.settings.root, path, request.body()));
        if (request.method() != http::verb::get && request.method() != http::verb::head)
            return SendRefusal(request, 405);
        const SiteAnswer answer = AnswerFor(network_.settings, path);
        if (IsPage(answer) && !HasRoom(network_)) return SendRefusal(request, 503);
        Send(request, answer);
    }

    void SendRefusal(const Request& request, int status) { Send(request, Refusal(status)); }

    void Send(const Request& request, SiteAnswer answer) {
        auto response = std::make_shared<http::response<http::string_body>>(
            static_cast<http::status>(answer.status), request.version());
        response->set(http::field::content_type, beast::string_view(answer.type.data(), answer.type.size()));
        response->set(http::field::cache_control, "no-cache");
        response->set("X-Content-Type-Options", "nosniff");
        response->set("Content-Security-Policy", "default-src 'self'; frame-ancestors 'none'");
        if (const std::string cookie = TokenCookie(network_.settings, View(request.target()));
            !cookie.empty())
            response->set(http::field::set_cookie, cookie);
        response->keep_alive(request.keep_alive());
        response->body() = std::move(answer.body);
        response->prepare_payload();
        if (request.method() == http::verb::head) response->body().clear();
        stream_.expires_after(kAnswerTime);
        http::async_write(stream_, *response,
                          [self = shared_from_this(), response](beast::error_code error, std::size_t) {
                              if (!error && response->keep_alive()) return self->Read();
                              beast::error_code ignored;
                              self->stream_.socket().shutdown(tcp::socket::shutdown_send, ignored);
                          });
    }

    beast::basic_stream<tcp, Executor> stream_;
    FlightDeck::Network& network_;
    std::list<Connection*>::iterator place_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
};

}  // namespace

void FlightDeck::Network::Accept() {
    acceptor.async_accept([this](beast::error_code error, Socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (!error) {
            beast::error_code ignored;
            socket.set_option(tcp::no_delay(true), ignored);
            socket.set_option(asio::socket_base::send_buffer_size(kSendBuffer), ignored);
            // Who holds connections without asking for anything keeps nobody out.
            if (connections.size() >= kMaxConnections) connections.front()->Drop();
            std::make_shared<Connection>(std::move(socket), *this)->Read();
            return Accept();
        }
        // Out of files, say: time may help.
        accept_pause.expires_after(std::chrono::milliseconds(100));
        accept_pause.async_wait([this](beast::error_code stopped) {
            if (!stopped) Accept();
        });
    });
}

FlightDeck::FlightDeck(DeckSettings settings, PictureSource pictures)
    : network_(std::make_unique<Network>()) {
    network_->settings = std::move(settings);
    network_->pictures = std::move(pictures);
}

FlightDeck::~FlightDeck() {
    Stop();
}

bool FlightDeck::Start(std::string& error) {
    Network& network = *network_;
    beast::error_code failed;
    std::error_code missing;
    if (!std::filesystem::is_directory(network.settings.page_folder, missing)) {
        error = "the page's folder " + network.settings.page_folder + " is missing";
        return false;
    }
    const auto address = asio::ip::make_address(network.settings.address, failed);
    if (failed) {
        error = network.settings.address + " is no address";
        return false;
    }
    if (!address.is_loopback() && network.settings.token.empty()) {
        error = "an address wider than loopback needs a token";
        return false;
    }
    const tcp::endpoint endpoint(address, static_cast<unsigned short>(network.settings.port));
    network.acceptor.open(endpoint.protocol(), failed);
    if (!failed) network.acceptor.set_option(asio::socket_base::reuse_address(true), failed);
    if (!failed) network.acceptor.bind(endpoint, failed);
    if (!failed) network.acceptor.listen(asio::socket_base::max_listen_connections, failed);
    if (failed) {
        error =
            network.settings.address + ":" + std::to_string(network.settings.port) + ": " + failed.message();
        return false;
    }
    network.settings.port = network.acceptor.local_endpoint().port();
    network.Accept();
    network.thread = std::thread([&network] { network.io.run(); });
    return true;
}

void FlightDeck::Stop() {
    if (!network_->thread.joinable()) return;
    network_->io.stop();
    network_->thread.join();
}

int FlightDeck::port() const {
    return network_->settings.port;
}

std::vector<DeckCommand> FlightDeck::TakeCommands() {
    return host::TakeCommands(*network_);
}

bool FlightDeck::WaitForCommands(std::chrono::steady_clock::time_point until) {
    return host::WaitForCommands(*network_, until);
}

std::set<std::string> FlightDeck::WatchedNames() {
    return host::WatchedNames(*network_);
}

void FlightDeck::PublishValues(std::map<std::string, std::string> values) {
    asio::post(network_->io, [network = network_.get(), values = std::move(values)]() mutable {
        host::PublishValues(*network, std::move(values));
    });
}

void FlightDeck::SetGreeting(std::string text) {
    asio::post(network_->io,
               [network = network_.get(), text = std::move(text)] { network->greeting = text; });
}

bool IsLoopback(const std::string& address) {
    beast::error_code failed;
    const auto parsed = asio::ip::make_address(address, failed);
    return !failed && parsed.is_loopback();
}

}  // namespace host
